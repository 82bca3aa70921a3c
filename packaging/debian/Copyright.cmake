# The package's "copyright" file: whose work is in it, under which licence. Texts that every Debian system has are referred to, the others
# stand here whole. Each text in resources/licences must be named below, so that nothing is shipped without its licence.

set(refers_lgpl-3 "the GNU Lesser General Public License, version 3: /usr/share/common-licenses/LGPL-3.")
set(refers_gpl-3 "the GNU General Public License, version 3, which the LGPL supplements: /usr/share/common-licenses/GPL-3.")
set(title_lgpl-3 "Qt: linked, and its German texts in share/zarn/qt_de.qm. Copyright (c) The Qt Company Ltd and contributors. Used under\n${refers_lgpl-3}")
set(title_gpl-3 "Of the same:\n${refers_gpl-3}")
set(title_cli11 "CLI11: part of zarn-cli")
set(title_muparser "muParser: linked")
set(title_freetype "FreeType: linked. Used under its own licence, the first of the two that it offers")
set(title_icons "The icons in the windows")
set(title_store "The store of many cards: SQLite and Zstandard, linked; Apache Thrift, the interface definition of Parquet and headers of Boost, part of zarn-cli")
set(title_fonts "Fonts: part of the programs")
set(title_base-map "The map of the world: part of zarn")
set(title_map-shores "The detailed map: share/zarn/map/shores.bin")
set(title_map-places "The detailed map: share/zarn/map/places.bin")
set(title_map-airfields "The detailed map: share/zarn/map/airfields.bin")

set(copyright "ZARN, after-flight review of engine recordings.

Copyright (c) the ZARN developers. Licensed under the Apache License, version 2.0: /usr/share/common-licenses/Apache-2.0.
The icon, packaging and manual are part of it; the AppStream description is in the public domain (CC0-1.0).

What follows is the work of others.
")
set(rule "----------------------------------------------------------------------------------------------------")
file(GLOB texts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/resources/licences/*.txt")
foreach(text ${texts})
  get_filename_component(name "${text}" NAME_WE)
  if(NOT DEFINED title_${name})
    message(FATAL_ERROR "${text}: say in packaging/debian/Copyright.cmake what is under this licence.")
  endif()
  string(APPEND copyright "\n${rule}\n${title_${name}}\n")
  if(NOT DEFINED refers_${name})
    file(READ "${text}" content)
    string(APPEND copyright "\n${content}")
  endif()
endforeach()
file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/copyright" CONTENT "${copyright}")
