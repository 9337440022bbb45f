# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# With TESSARIN_PRECOMPILE the toolkit's and the test framework's headers are compiled once for all tests (TESTS), or
# for all tests and once more for all rooms (ON). Builds that only run the tests use ON; elsewhere the rooms stay
# without, so that a missing include shows.
function(tessarin_precompiled target)
  cmake_parse_arguments(ARG "" "" "HEADERS;LINKS" ${ARGN})
  if(NOT TESSARIN_PRECOMPILE)
    return()
  endif()
  file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled/${target}.cpp" CONTENT "// Carries headers, has no code.\n")
  add_library(${target} OBJECT "${CMAKE_BINARY_DIR}/precompiled/${target}.cpp")
  target_link_libraries(${target} PRIVATE tessarin_warnings ${ARG_LINKS})
  target_precompile_headers(${target} PRIVATE ${ARG_HEADERS})
endfunction()

# tessarin_use_precompiled(<target> <carrier>): does nothing where there is none.
function(tessarin_use_precompiled target carrier)
  if(TARGET ${carrier})
    target_precompile_headers(${target} REUSE_FROM ${carrier})
  endif()
endfunction()

if(NOT TESSARIN_PRECOMPILE STREQUAL "TESTS")
  tessarin_precompiled(tessarin_room_headers
    HEADERS <QtWidgets> <algorithm> <functional> <memory> <optional> <string> <vector>
    LINKS Qt6::Widgets)
endif()
if(TARGET tessarin_room_headers)
  set_target_properties(tessarin_room_headers PROPERTIES POSITION_INDEPENDENT_CODE ON)
endif()
