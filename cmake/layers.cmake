# Who may know whom in the sources: stops the build at an #include that leads upwards or across.
# cmake -D SOURCES=$PWD/src -P cmake/layers.cmake

cmake_minimum_required(VERSION 3.22)

# A layer is a directory, or the rules of a game: whatever in its directory is neither its header nor its table.
set(toolkit_knows toolkit)
set(pieces_knows pieces)
set(host_knows host pieces)
set(pictures_knows pictures toolkit pieces)
set(game_knows toolkit pieces host pictures)  # and its own rules
set(rules_knows pieces)                       # and what stands beside them
set(room_knows room toolkit pictures host games)
set(desktop_knows desktop room host toolkit pictures)
set(web_knows web room host toolkit)
set(driver_knows driver room host toolkit pictures desktop)

set(layers toolkit pieces host pictures room desktop web driver)
set(wrong "")
file(GLOB_RECURSE files RELATIVE ${SOURCES} ${SOURCES}/*.cpp ${SOURCES}/*.hpp)
foreach(file IN LISTS files)
  get_filename_component(directory ${file} DIRECTORY)
  get_filename_component(name ${file} NAME_WE)
  if(directory IN_LIST layers)
    set(layer ${directory})
  elseif(name MATCHES "^(game|table)$")
    set(layer game)
  else()
    set(layer rules)
  endif()
  file(STRINGS ${SOURCES}/${file} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[\"<]")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^[^\"<]*[\"<]([^\">/]*)/([^\">.]*).*" "\\1;\\2" parts "${include}")
    list(GET parts 0 known)
    list(LENGTH parts length)
    set(header "")
    if(length GREATER 1)
      list(GET parts 1 header)
    endif()
    if(include MATCHES "include[ \t]*<" AND (length EQUAL 1 OR NOT IS_DIRECTORY ${SOURCES}/${known}))
      continue() # a library's
    elseif(known IN_LIST ${layer}_knows)
      continue()
    elseif(layer STREQUAL room AND NOT known IN_LIST layers AND header STREQUAL game)
      continue() # the one header of a game
    elseif(known STREQUAL directory AND (layer STREQUAL game OR NOT header MATCHES "^(game|table)$"))
      continue()
    endif()
    list(JOIN ${layer}_knows " " allowed)
    list(APPEND wrong "src/${file}: ${include} is not for this layer (${layer} knows: ${allowed})")
  endforeach()
endforeach()
if(wrong)
  list(JOIN wrong "\n  " wrong) # a line that is set off is not wrapped
  message(FATAL_ERROR "  ${wrong}")
endif()
