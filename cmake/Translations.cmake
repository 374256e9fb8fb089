# The texts in other languages: data/translations/quillmere_<language>.ts, compiled into the program.
#
#   cmake --build build --target update-translations    brings new and changed texts into the files
#
# quillmere_translations(<target> <language> ...)
function(quillmere_translations target)
  foreach(tool lupdate lrelease)
    string(TOUPPER ${tool} variable)
    find_program(QUILLMERE_${variable} NAMES ${tool} ${tool}-qt6
      HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
  endforeach()

  # Not the command-line tools: what scripts read stays as it is.
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/src/*.cpp ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/src/*.qml)
  list(FILTER sources EXCLUDE REGEX "/src/(ctl|helpers)/")
  list(JOIN sources "\n" lines)
  file(WRITE ${PROJECT_BINARY_DIR}/translations/sources.txt "${lines}\n")
  set(update ${QUILLMERE_LUPDATE} -silent -I ${PROJECT_SOURCE_DIR}/src
    @${PROJECT_BINARY_DIR}/translations/sources.txt -no-obsolete -locations none)

  foreach(language IN LISTS ARGN)
    set(text ${PROJECT_SOURCE_DIR}/data/translations/quillmere_${language}.ts)
    set(compiled ${PROJECT_BINARY_DIR}/translations/quillmere_${language}.qm)
    add_custom_command(OUTPUT ${compiled} DEPENDS ${text}
      COMMAND ${QUILLMERE_LRELEASE} -silent ${text} -qm ${compiled} VERBATIM)
    list(APPEND texts ${text})
    list(APPEND all_compiled ${compiled})
  endforeach()
  set_source_files_properties(${all_compiled} PROPERTIES GENERATED ON)
  qt_add_resources(${target} ${target}_translations
    PREFIX /translations BASE ${PROJECT_BINARY_DIR}/translations FILES ${all_compiled})

  add_custom_target(update-translations COMMAND ${update} -ts ${texts} VERBATIM)
  set_property(GLOBAL PROPERTY QUILLMERE_TRANSLATIONS_UPDATE ${update})
  set_property(GLOBAL PROPERTY QUILLMERE_TRANSLATIONS ${texts})
endfunction()
