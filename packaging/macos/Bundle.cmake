# The application bundle "zarn.app": program and batch program in Contents/MacOS, resources in Contents/Resources, where the program
# looks for them.

set(icon "${CMAKE_CURRENT_BINARY_DIR}/zarn.icns")
set(iconset "${CMAKE_CURRENT_BINARY_DIR}/zarn.iconset")
file(MAKE_DIRECTORY "${iconset}")
foreach(pair 16:16x16 32:16x16@2x 32:32x32 64:32x32@2x 128:128x128 256:128x128@2x 256:256x256 512:256x256@2x 512:512x512)
  string(REPLACE ":" ";" pair ${pair})
  list(GET pair 0 size)
  list(GET pair 1 name)
  configure_file(icons/zarn-${size}.png "${iconset}/icon_${name}.png" COPYONLY)
endforeach()
add_custom_command(OUTPUT "${icon}" COMMAND iconutil --convert icns --output "${icon}" "${iconset}" VERBATIM)
add_custom_target(icon ALL DEPENDS "${icon}")
add_dependencies(zarn icon zarn-cli zarn-cli-live translations)

set_target_properties(zarn PROPERTIES
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST "${CMAKE_CURRENT_LIST_DIR}/Info.plist.in"
  MACOSX_BUNDLE_BUNDLE_NAME ZARN
  MACOSX_BUNDLE_GUI_IDENTIFIER ${ZARN_APPLICATION_ID}
  MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}"
  MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
  MACOSX_BUNDLE_ICON_FILE zarn.icns)

# In the build tree too, so that the program runs from there.
add_custom_command(TARGET zarn POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E make_directory "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/Resources"
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${PROJECT_SOURCE_DIR}/resources/profiles" "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/Resources/profiles"
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${ZARN_RESOURCES}/map" "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/Resources/map"
  COMMAND ${CMAKE_COMMAND} -E copy_directory "${PROJECT_SOURCE_DIR}/resources/licences" "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/Resources/licences"
  COMMAND ${CMAKE_COMMAND} -E copy "${icon}" ${translations} "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/Resources"
  COMMAND ${CMAKE_COMMAND} -E copy "$<TARGET_FILE:zarn-cli>" "$<TARGET_FILE:zarn-cli-live>" "$<TARGET_BUNDLE_CONTENT_DIR:zarn>/MacOS"
  VERBATIM)
install(TARGETS zarn BUNDLE DESTINATION .)

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_NAME ZARN)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/package")
include(CPack)
