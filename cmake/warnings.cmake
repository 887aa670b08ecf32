# One place for the warning set every target of the project uses.
function(tessarin_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra)
endfunction()
