# The translations beside the program: ours made from resources/translations, the toolkit's own copied under the name that the
# program looks for. "cmake --build ... --target update_translations" takes new texts of the sources over into the .ts file.

set(ZARN_LANGUAGES de en) # English: the forms of texts with a number alone
set(translations)
foreach(language ${ZARN_LANGUAGES})
  set(source "${PROJECT_SOURCE_DIR}/resources/translations/zarn_${language}.ts")
  set(target "${ZARN_RESOURCES}/zarn_${language}.qm")
  add_custom_command(OUTPUT "${target}" COMMAND Qt6::lrelease -silent "${source}" -qm "${target}" DEPENDS "${source}" VERBATIM)
  list(APPEND translations "${target}")

  if(language STREQUAL "en")
    continue()
  endif()
  # "qt_" holds nothing but references to a dozen catalogues; the one of the widgets serves in its place.
  set(source "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/qtbase_${language}.qm")
  set(target "${ZARN_RESOURCES}/qt_${language}.qm")
  if(EXISTS "${source}")
    add_custom_command(OUTPUT "${target}" COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${target}" DEPENDS "${source}" VERBATIM)
    list(APPEND translations "${target}")
  else()
    message(WARNING "${source} is missing: the toolkit's own texts will stay English in \"${language}\".")
  endif()
endforeach()
add_custom_target(translations ALL DEPENDS ${translations})
add_dependencies(zarn translations)

set(update Qt6::lupdate -no-obsolete -locations none -I . -recursive analysis app card live profile project trace ui export store report openstreet vesk)
add_custom_target(update_translations
  COMMAND ${update} -ts resources/translations/zarn_de.ts
  COMMAND ${update} -pluralonly -ts resources/translations/zarn_en.ts
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
