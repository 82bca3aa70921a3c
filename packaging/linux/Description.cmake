# What the AppStream description is filled with: the pictures of the manual and the releases, whose changes CHANGELOG.md lists.

# Where the pictures can be fetched. Like the maintainer's address it leads nowhere on purpose: whoever distributes packages puts theirs there.
set(ZARN_PICTURES "https://packages.invalid/zarn/images" CACHE STRING "Address of the folder docs/images, for software centres")

set(ZARN_SCREENSHOTS "")
macro(screenshot picture english german)
  string(APPEND ZARN_SCREENSHOTS "<screenshot${type}>
<caption>${english}</caption><caption xml:lang=\"de\">${german}</caption>
<image width=\"1400\" height=\"900\">${ZARN_PICTURES}/${picture}.png</image>
<image width=\"1400\" height=\"900\" xml:lang=\"de\">${ZARN_PICTURES}/${picture}-de.png</image>
</screenshot>\n")
  set(type "")
endmacro()
set(type " type=\"default\"")
screenshot(overview "Was the engine all right? A verdict for each power cycle" "War mit dem Motor alles in Ordnung? Ein Urteil zu jedem Einschaltzyklus")
screenshot(main-window "Values in a table, and the flight path" "Werte in einer Tabelle, und der Flugweg")
screenshot(graph "Traces over the time, with their limits" "Kurven über der Zeit, mit ihren Grenzwerten")
screenshot(fault-matrix "Which faults were reported, and when" "Welche Fehler gemeldet wurden, und wann")

set(changes "${PROJECT_SOURCE_DIR}/CHANGELOG.md")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changes}")
execute_process(COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/packaging/make-changelogs" "${changes}" "${ZARN_RELEASE_DATE}"
                        "${CPACK_PACKAGE_CONTACT}" "${CMAKE_CURRENT_BINARY_DIR}/releases.xml" "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian"
                COMMAND_ERROR_IS_FATAL ANY)
file(READ "${CMAKE_CURRENT_BINARY_DIR}/releases.xml" ZARN_RELEASES)
