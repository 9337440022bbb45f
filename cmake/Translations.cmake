# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# tessarin_translations(<target> FROM <folder> TO <folder below the prefix>): compiles all translations of a folder,
# each with its sum beside it, and installs them. The programs load none whose sum does not match.
function(tessarin_translations target)
  cmake_parse_arguments(ARG "" "FROM;TO" "" ${ARGN})
  set(folder "${CMAKE_BINARY_DIR}/${ARG_TO}")
  file(MAKE_DIRECTORY "${folder}")
  file(GLOB translations CONFIGURE_DEPENDS "${ARG_FROM}/*.ts")
  set(compiled "")
  foreach(ts IN LISTS translations)
    get_filename_component(name "${ts}" NAME_WE)
    set(qm "${folder}/${name}.qm")
    add_custom_command(
      OUTPUT "${qm}" "${qm}.sha256"
      COMMAND Qt6::lrelease -silent "${ts}" -qm "${qm}"
      COMMAND "${CMAKE_COMMAND}" -E sha256sum "${name}.qm" > "${name}.qm.sha256"
      WORKING_DIRECTORY "${folder}"
      DEPENDS "${ts}"
      VERBATIM)
    list(APPEND compiled "${qm}" "${qm}.sha256")
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${compiled})
  install(FILES ${compiled} DESTINATION "${ARG_TO}")
endfunction()
