# quillmere_install_template(<file>.in <folder below the prefix>): what names the program's place gets
# it when it is installed, since the prefix may be another then: cmake --install --prefix, a package.
include(GNUInstallDirs)

function(quillmere_install_template template folder)
  cmake_path(GET template STEM LAST_ONLY name)
  set(built ${CMAKE_CURRENT_BINARY_DIR}/installed/${name})
  install(CODE "
    set(BINDIR \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    set(PROJECT_VERSION \"${PROJECT_VERSION}\")
    configure_file(\"${CMAKE_CURRENT_SOURCE_DIR}/${template}\" \"${built}\" @ONLY)
    file(INSTALL \"${built}\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${folder}\")")
endfunction()
