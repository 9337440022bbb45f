# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A room is a folder of sources with a stated list of what they may include. Each room is compiled against a view: a
# folder in the build tree with links to exactly those rooms and headers, and nothing else of the source tree on the
# include path. A forbidden include is then a file that does not exist.
#
#   tessarin_room(<target> ROOM <folder> SOURCES <file>... SEES <folder or header>...)
#
# The room's own folder is always seen. Entries are relative to the source tree.
function(tessarin_room target)
  cmake_parse_arguments(ARG "" "ROOM" "SOURCES;SEES;LINKS" ${ARGN})
  set(view "${CMAKE_BINARY_DIR}/views/${target}")
  file(REMOVE_RECURSE "${view}")
  foreach(seen IN LISTS ARG_ROOM ARG_SEES)
    get_filename_component(folder "${view}/${seen}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${seen}" "${view}/${seen}" SYMBOLIC)
  endforeach()
  list(TRANSFORM ARG_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/${ARG_ROOM}/")
  add_library(${target} OBJECT ${ARG_SOURCES})
  target_include_directories(${target} PRIVATE "${view}")
  target_link_libraries(${target} PRIVATE tessarin_warnings ${ARG_LINKS})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(ARG_LINKS MATCHES "Qt6::")
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
  endif()
  if(ARG_LINKS MATCHES "Qt6::Widgets")
    tessarin_use_precompiled(${target} tessarin_room_headers)
  endif()
endfunction()
