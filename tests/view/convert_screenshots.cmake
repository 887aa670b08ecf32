# Turns the pictures the dialog tests wrote (FROM/*.bmp) into the PNG files the help
# pages show (TO/menu.png, view_settings.png, light_settings.png), with ImageMagick.
foreach(name menu view_settings light_settings)
  if(NOT EXISTS ${FROM}/${name}.bmp)
    message(FATAL_ERROR "no picture ${FROM}/${name}.bmp: its test did not write it")
  endif()
  file(MAKE_DIRECTORY ${TO})
  execute_process(COMMAND convert ${FROM}/${name}.bmp -strip ${TO}/${name}.png RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "convert failed for ${name}.bmp")
  endif()
  message(STATUS "${TO}/${name}.png")
endforeach()
