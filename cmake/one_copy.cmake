# One copy of the library per process. A program links either Tessarin20b.dll (through
# its import library) or the library's static parts (tessarin_static: the Win32 layer
# and the platform-neutral cores), never both: two copies have two sets of globals,
# registries and scenes, and a test could pass against the one that users do not load.
#
# tessarin_check_one_copy() runs once every target exists (the end of the top-level
# CMakeLists.txt) and stops the configure step, naming the target, when any target's
# link closure holds the DLL and a static part. The static parts are the library
# targets defined under source/, except the DLL itself.

# Targets named in a link list, with $<LINK_ONLY:x> unwrapped and other expressions
# and plain linker flags or system libraries left out.
function(_tessarin_link_targets out)
  set(found "")
  foreach(item IN LISTS ARGN)
    string(REGEX REPLACE "^\\$<LINK_ONLY:(.+)>$" "\\1" item "${item}")
    if(item MATCHES "^\\$<" OR NOT TARGET "${item}")
      continue()
    endif()
    get_target_property(aliased "${item}" ALIASED_TARGET)
    if(aliased)
      set(item "${aliased}")
    endif()
    list(APPEND found "${item}")
  endforeach()
  set(${out} "${found}" PARENT_SCOPE)
endfunction()

# Every target that `target` links, directly or through the interfaces of what it links.
function(_tessarin_link_closure target out)
  get_target_property(type "${target}" TYPE)
  set(direct "")
  if(NOT type STREQUAL "INTERFACE_LIBRARY")
    get_target_property(direct "${target}" LINK_LIBRARIES)
    if(NOT direct)
      set(direct "")
    endif()
  endif()
  get_target_property(exported "${target}" INTERFACE_LINK_LIBRARIES)
  if(exported)
    list(APPEND direct ${exported})
  endif()
  _tessarin_link_targets(pending ${direct})
  set(closure "")
  while(pending)
    list(POP_FRONT pending next)
    if(next IN_LIST closure)
      continue()
    endif()
    list(APPEND closure "${next}")
    get_target_property(more "${next}" INTERFACE_LINK_LIBRARIES)
    if(more)
      _tessarin_link_targets(more_targets ${more})
      list(APPEND pending ${more_targets})
    endif()
  endwhile()
  set(${out} "${closure}" PARENT_SCOPE)
endfunction()

# Every build-system target of `dir` and the folders below it.
function(_tessarin_targets_below dir out)
  get_property(targets DIRECTORY "${dir}" PROPERTY BUILDSYSTEM_TARGETS)
  get_property(subdirs DIRECTORY "${dir}" PROPERTY SUBDIRECTORIES)
  foreach(sub IN LISTS subdirs)
    _tessarin_targets_below("${sub}" more)
    list(APPEND targets ${more})
  endforeach()
  set(${out} "${targets}" PARENT_SCOPE)
endfunction()

# True for a library target defined under source/ other than the DLL.
function(_tessarin_is_static_part target out)
  set(result OFF)
  get_target_property(dir "${target}" SOURCE_DIR)
  get_target_property(type "${target}" TYPE)
  if(dir MATCHES "^${PROJECT_SOURCE_DIR}/source(/|$)" AND NOT target STREQUAL "Tessarin20b"
     AND type MATCHES "LIBRARY$")
    set(result ON)
  endif()
  set(${out} ${result} PARENT_SCOPE)
endfunction()

function(tessarin_check_one_copy)
  if(NOT TARGET Tessarin20b)
    return()
  endif()
  _tessarin_targets_below("${PROJECT_SOURCE_DIR}" targets)
  set(dll_programs 0)
  set(static_programs 0)
  foreach(target IN LISTS targets)
    if(target STREQUAL "Tessarin20b")
      continue()
    endif()
    _tessarin_link_closure("${target}" closure)
    set(static_part "")
    foreach(part IN LISTS closure)
      _tessarin_is_static_part("${part}" is_part)
      if(is_part)
        set(static_part "${part}")
        break()
      endif()
    endforeach()
    if("Tessarin20b" IN_LIST closure AND static_part)
      message(FATAL_ERROR "${target} links Tessarin20b.dll and the library's static part ${static_part}: "
                          "two copies of the library in one process. Link the DLL only (black-box) "
                          "or tessarin_static only (white-box).")
    endif()
    get_target_property(type "${target}" TYPE)
    if(type STREQUAL "EXECUTABLE")
      if("Tessarin20b" IN_LIST closure)
        math(EXPR dll_programs "${dll_programs} + 1")
      elseif(static_part)
        math(EXPR static_programs "${static_programs} + 1")
      endif()
    endif()
  endforeach()
  # The summary is what a reviewer reads to see the rule held: no program is in both counts.
  message(STATUS "One copy of the library per program: ${dll_programs} link Tessarin20b.dll only, "
                 "${static_programs} link the static parts only, none link both")
endfunction()
