# One library per folder, and dependencies that point one way only.
#
# A folder's headers are reachable as "folder/Header.h" by the targets that link its library and by
# no others: each library publishes links to its own headers in a private include root. Together
# with the table below, an include or a link against the arrows does not build.

set(layer_platform   events)
set(layer_log        platform)
set(layer_settings   platform events)
set(layer_island     log settings platform events)
set(layer_monitors   log settings platform events)
set(layer_nowplaying island log settings platform events)
set(layer_claude     log platform)
set(layer_weather    island log settings platform events)
set(layer_tools      island log settings platform events)
set(layer_messages   island log settings platform events)
set(layer_google     island log settings platform events)
set(layer_app        nowplaying weather messages google tools island monitors claude log settings platform events)
set(layer_views      app weather messages google tools island claude log settings platform events)
set(layer_setupwindow views app claude log settings platform events)
set(layer_settingswindow views app weather messages tools island claude log settings platform events)
set(layer_linux      platform events)

# What a layer of logic may take from outside: no bus, no widgets, no scene graph.
set(outside_logic    Qt6::Core Qt6::Gui tl::expected)
set(outside_claude   ${outside_logic} nlohmann_json::nlohmann_json)
set(outside_views    Qt6::Core Qt6::Gui Qt6::Qml Qt6::Quick Qt6::Svg tl::expected)
set(outside_setupwindow ${outside_views})
set(outside_settingswindow ${outside_views})
set(outside_linux    Qt6::Core Qt6::Gui Qt6::GuiPrivate Qt6::DBus Qt6::Network tl::expected nlohmann_json::nlohmann_json
                     PkgConfig::PULSE PkgConfig::WAYLAND PkgConfig::XCB PkgConfig::UDEV
                     PkgConfig::DBUS PkgConfig::LZ4 PkgConfig::CANBERRA PkgConfig::SQLITE
                     PkgConfig::GMIME qt6keychain)

# quillmere_library(<target> LAYER <layer> FOLDER <folder below src> [SOURCES ...] [HEADERS ...] [LINK ...])
function(quillmere_library target)
  cmake_parse_arguments(arg "" "LAYER;FOLDER" "SOURCES;HEADERS;LINK" ${ARGN})
  set(folder ${PROJECT_SOURCE_DIR}/src/${arg_FOLDER})
  list(TRANSFORM arg_SOURCES PREPEND ${folder}/)
  list(TRANSFORM arg_HEADERS PREPEND ${folder}/)

  if(DEFINED outside_${arg_LAYER})
    set(outside ${outside_${arg_LAYER}})
  else()
    set(outside ${outside_logic})
  endif()
  foreach(dependency IN LISTS arg_LINK)
    if(TARGET ${dependency})
      get_target_property(layer ${dependency} QUILLMERE_LAYER)
    endif()
    if(layer AND NOT layer STREQUAL arg_LAYER AND NOT layer IN_LIST layer_${arg_LAYER})
      message(FATAL_ERROR "${target} (${arg_LAYER}) may not depend on ${dependency} (${layer})")
    elseif(NOT layer AND NOT dependency IN_LIST outside)
      message(FATAL_ERROR "${target} (${arg_LAYER}) may not link ${dependency}")
    endif()
    unset(layer)
  endforeach()
  foreach(file IN LISTS arg_SOURCES arg_HEADERS)
    file(STRINGS ${file} upward REGEX "#include \"\\.\\./")
    if(upward)
      message(FATAL_ERROR "${file} includes around its layer: ${upward}")
    endif()
  endforeach()

  add_library(${target} STATIC ${arg_SOURCES} ${arg_HEADERS})
  # Bindings as machine code take half a megabyte, and no frame comes sooner by them: most wait for
  # what they are told.
  set_target_properties(${target} PROPERTIES QUILLMERE_LAYER ${arg_LAYER} LINKER_LANGUAGE CXX
    QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  set(root ${PROJECT_BINARY_DIR}/include/${target})
  file(REMOVE_RECURSE ${root})
  foreach(header IN LISTS arg_HEADERS)
    file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR}/src ${header})
    cmake_path(GET name PARENT_PATH parent)
    file(MAKE_DIRECTORY ${root}/${parent})
    file(CREATE_LINK ${header} ${root}/${name} SYMBOLIC)
  endforeach()
  target_include_directories(${target} PUBLIC ${root})
  target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE quillmere_options quillmere_compact)
endfunction()
