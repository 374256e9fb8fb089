# The Debian package: `cpack -G DEB` in the build directory.
#
# Libraries are found by dpkg-shlibdeps. What is loaded at run time only (QML modules, Qt plugins,
# icons, the sound driver) is what scripts/packages.txt calls "run": the same list that ./run installs.

# quillmere_run_packages(<variable> <third word of the line>)
function(quillmere_run_packages variable mark)
  file(STRINGS ${PROJECT_SOURCE_DIR}/scripts/packages.txt lines REGEX "^run [^ ]+${mark}$")
  list(TRANSFORM lines REPLACE "^run ([^ ]+).*$" "\\1")
  list(JOIN lines ", " joined)
  set(${variable} "${joined}" PARENT_SCOPE)
endfunction()

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS scripts/packages.txt)
quillmere_run_packages(CPACK_DEBIAN_PACKAGE_DEPENDS "")
quillmere_run_packages(CPACK_DEBIAN_PACKAGE_RECOMMENDS " recommended")

set(QUILLMERE_MAINTAINER "The Quillmere developers <developers@quillmere.invalid>" CACHE STRING
  "Name and address of who answers for the package")

set(CPACK_PACKAGE_NAME quillmere)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "island at the top of the screen that shows what just happened")
set(CPACK_PACKAGE_DESCRIPTION
"A small black island at the top edge of the screen. It grows for a moment when
the volume, the brightness or the player changes, when a charger or headphones
are connected, when the weather turns or a message comes. A press on it opens a
dashboard with the player, the weather, the load, timers and a tray for files.")
set(CPACK_STRIP_FILES ON)
# Files are installed for where they will be, not for where they are collected.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${QUILLMERE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "upower, notmuch, python3")
# dpkg refuses folders that only their owner may enter, whatever the umask of who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
