# The packages for Debian: tarn, and libtarn-dev. ./dev package makes and examines them.
set(revision 1)
set(version ${PROJECT_VERSION}-${revision})

# What Debian wants of every package beside the programs.
if(TARN_LICENCE)
  set(TARN_COPYRIGHT_LICENCE ${TARN_LICENCE})
  file(READ licence.txt text)
  string(REGEX REPLACE "\n+$" "" text "${text}")
  string(REGEX REPLACE "\n\n" "\n.\n" text "${text}")
  string(REGEX REPLACE "\n" "\n " TARN_LICENCE_TEXT " ${text}")
else()
  set(TARN_COPYRIGHT_LICENCE not-named-yet)
  set(TARN_LICENCE_TEXT
      " The owner of tarn has not named a licence. Without one nobody else is given the right\n to copy, change or pass on tarn.")
endif()
set(TARN_COPYRIGHT_HOLDER "${TARN_COPYRIGHT}")
if(NOT TARN_COPYRIGHT)
  string(SUBSTRING ${TARN_RELEASE_DAY} 0 4 year)
  set(TARN_COPYRIGHT_HOLDER "${year} the owner of tarn, who has not given a name")
endif()
configure_file(copyright.in ${generated}/copyright @ONLY)

execute_process(
  COMMAND date --utc --rfc-email --date "${TARN_RELEASE_DAY} 12:00"
  OUTPUT_VARIABLE TARN_RELEASE_DATE
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
foreach(package IN ITEMS tarn libtarn-dev)
  set(TARN_DEB_PACKAGE ${package})
  set(TARN_DEB_VERSION ${version})
  configure_file(changelog.Debian.in ${generated}/${package}/changelog.Debian @ONLY)
  configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${generated}/${package}/changelog COPYONLY)
  execute_process(COMMAND gzip -9nkf ${generated}/${package}/changelog.Debian
                          ${generated}/${package}/changelog COMMAND_ERROR_IS_FATAL ANY)
  set(component runtime)
  if(package STREQUAL "libtarn-dev")
    set(component development)
  endif()
  install(
    FILES ${generated}/copyright ${generated}/${package}/changelog.Debian.gz
          ${generated}/${package}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
    COMPONENT ${component})
  if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${package}.lintian-overrides)
    install(
      FILES ${package}.lintian-overrides
      DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
      RENAME ${package}
      COMPONENT ${component})
  endif()
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarn)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/cpack.cmake)
set(CPACK_PACKAGE_VENDOR "")
set(CPACK_PACKAGE_CONTACT "${TARN_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${TARN_HOMEPAGE}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${revision})
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME tarn)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# Beside what the programs are linked to: the driver that Qt loads for the database, a font with the
# widths that pages are made by (docs/printing.md), and one for the screens: without, a system that
# has no other takes letters of one width.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS
    "libqt6sql6-sqlite, fonts-liberation, fonts-dejavu-core | fonts-noto-core")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
    "hicolor-icon-theme, shared-mime-info, qt6-translations-l10n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "cups")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "estimating tool for floor-covering installers
The rooms of a project are entered in feet and inches or in centimetres;
tarn works out how much carpet to order and how to cut it from a roll: as
a cut list with its totals, and as a drawing to scale, on the screen, on
paper and in files for other programs.
.
Orders compare rolls and lays, with trim, selvage, seams and patterns that
have to match. The same without a display: tarn-estimate, tarn-order and
tarn-data.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtarn-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libc6-dev, libstdc++-12-dev | libstdc++-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake, tarn")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "carpet estimates and orders for other programs
What tarn computes with, as a static library for C++20 with headers and a
package for CMake: rooms go in as plain values, an estimate or an order of
how carpet is cut from a roll comes out.")
include(CPack)
