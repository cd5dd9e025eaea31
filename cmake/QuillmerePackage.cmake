# What a desktop needs to know of the program, and the packages.
include(GNUInstallDirs)

set(QUILLMERE_RELEASE_DATE "2026-11-21")
set(QUILLMERE_RELEASE_DATE_OF_MAIL "Sat, 21 Nov 2026 12:00:00 +0000")
set(CPACK_PACKAGE_CONTACT "The Quillmere developers <developers@quillmere.example>")
string(REGEX REPLACE "/+$" "" _site "${QUILLMERE_SITE}")
set(QUILLMERE_PAGES "${_site}/quillmere")

set(_id example.quillmere.Quillmere)
set(_linux "${PROJECT_SOURCE_DIR}/packaging/linux")
set(_debian "${PROJECT_SOURCE_DIR}/packaging/debian")
set(_made "${PROJECT_BINARY_DIR}/packaging")
configure_file("${_linux}/${_id}.metainfo.xml.in" "${_made}/${_id}.metainfo.xml" @ONLY)
configure_file("${_linux}/quillmere.1.in" "${_made}/quillmere.1" @ONLY)

if(UNIX AND NOT APPLE)
  install(FILES "${_linux}/${_id}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${_made}/${_id}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES "${_linux}/${_id}.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
endif()

# The one program that is installed needs neither the demo nor the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CPACK_PACKAGE_NAME quillmere)
set(CPACK_PACKAGE_VENDOR "The Quillmere developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop companion for the Homebrew package manager")
set(CPACK_PACKAGE_DESCRIPTION
"Quillmere shows what Homebrew has installed and why, what is outdated, what a
cleanup would be about, and what a command will do before it does it. It
prepares the exact brew command line with its risk and its effects, and runs
it, where you want that, while you watch.
.
It never writes to Homebrew's files by itself and uploads nothing.")
set(CPACK_PACKAGE_HOMEPAGE_URL "${QUILLMERE_PAGES}")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}")

# A Debian package: manual and changelog compressed as Debian has them, the shared libraries found
# by what the program links, the rest from the list that `run` installs from. Without
# dpkg-shlibdeps CPack would make it all the same, depending on no library.
find_program(GZIP_PROGRAM gzip)
find_program(DPKG_SHLIBDEPS_PROGRAM dpkg-shlibdeps)
if(GZIP_PROGRAM AND DPKG_SHLIBDEPS_PROGRAM)
  configure_file("${_debian}/changelog.in" "${_made}/changelog" @ONLY)
  foreach(_file IN ITEMS quillmere.1 changelog)
    execute_process(COMMAND "${GZIP_PROGRAM}" -9nc "${_made}/${_file}"
      OUTPUT_FILE "${_made}/${_file}.gz" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  install(FILES "${_made}/quillmere.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${_debian}/copyright" "${_made}/changelog.gz"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/quillmere")

  file(STRINGS "${PROJECT_SOURCE_DIR}/scripts/packages.txt" _rows
    REGEX "^run +(qml6-module-|fonts-)")
  list(TRANSFORM _rows REPLACE "^run +([^ ]+) .*" "\\1")
  list(JOIN _rows ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
  set(CPACK_DEBIAN_PACKAGE_SECTION admin)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_GENERATOR DEB)
else()
  install(FILES "${_made}/quillmere.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  set(CPACK_GENERATOR TGZ)
endif()
include(CPack)
