# Where everything goes on a system that has the places of the file-system standard: "cmake --install build/release", and the
# Debian package (scripts/package). On Windows the zip of scripts/build-windows is the whole installation.

include(GNUInstallDirs)
set(KAVREL_MAINTAINER "kavrel developers <kavrel@example.org>" CACHE STRING "Who answers for the package")
set(KAVREL_HOME_PAGE "https://example.org/kavrel" CACHE STRING "Where the program is at home; has the pictures in pictures/")

# The pages of the manual and the completion are made of the program's own table, what packages tell of versions of the
# changelog.
set(made ${PROJECT_BINARY_DIR}/made)
set(changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(GLOB manual_templates CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/manual/*.1.in)
add_custom_command(OUTPUT ${made}/man/man1/kavrel-cli.1
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_manual.py $<TARGET_FILE:kavrel-command-facts>
          ${PROJECT_SOURCE_DIR}/docs/manual ${changelog} ${made}
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/make_manual.py kavrel-command-facts ${manual_templates} ${changelog}
  COMMENT "Making the pages of the manual and the completion")
set(metainfo ${PROJECT_SOURCE_DIR}/packaging/org.kavrel.kavrel.metainfo.xml.in)
add_custom_command(OUTPUT ${made}/changelog.gz
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/make_release_notes.py ${changelog} ${PROJECT_VERSION}
          ${KAVREL_MAINTAINER} ${KAVREL_HOME_PAGE} ${metainfo} ${made}
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/make_release_notes.py ${PROJECT_SOURCE_DIR}/tools/make_manual.py ${changelog} ${metainfo}
  COMMENT "Making what packages tell of versions"
  VERBATIM)
add_custom_target(manual ALL DEPENDS ${made}/man/man1/kavrel-cli.1 ${made}/changelog.gz)

install(TARGETS kavrel-cli RUNTIME)
if(KAVREL_DESKTOP)
  install(TARGETS kavrel RUNTIME)
endif()
# Nobody starts it but kavrel-cli.
if(TARGET kavrel-bufr)
  install(TARGETS kavrel-bufr RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/kavrel)
endif()

# What lies beside the programs where they are built lies in share/kavrel here; see platform/posix/program_folder.h.
set(beside ${PROJECT_BINARY_DIR}/src)
set(data ${CMAKE_INSTALL_DATADIR}/kavrel)
install(FILES ${beside}/kavrel.ini DESTINATION ${data})
install(DIRECTORY ${beside}/help ${beside}/pictures ${beside}/SeaMap DESTINATION ${data})

if(KAVREL_DESKTOP)
  install(FILES packaging/kavrel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES resources/icon/kavrel-${size}.png RENAME kavrel.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
  endforeach()
  install(FILES resources/icon/kavrel.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
  install(FILES ${made}/org.kavrel.kavrel.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endif()

# Packed as the manual's other pages are, without the time of packing.
install(DIRECTORY ${made}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR})
install(CODE "file(GLOB_RECURSE pages \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_MANDIR}/*/kavrel*.1\")
  foreach(page IN LISTS pages)
    execute_process(COMMAND gzip -9nf \${page} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()")
install(DIRECTORY ${made}/completions/ DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES packaging/copyright ${made}/changelog.gz docs/observation-files.md docs/doubts.md docs/bufr.md docs/fleet.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES examples/north_pacific.obs DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kavrel)
set(CPACK_PACKAGE_CONTACT ${KAVREL_MAINTAINER})
set(CPACK_PACKAGE_VENDOR kavrel)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${KAVREL_HOME_PAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Letters of both languages in columns that stand below each other, and the toolkit's own words in Japanese.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-ipafont-gothic, fonts-dejavu-core, qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "weather reports and logbook of a voluntary observing ship
At each synoptic hour the officer of the watch enters one surface weather
observation. The program derives what is not read directly, checks everything,
and writes a WMO FM 13 SHIP report and one record of the marine meteorological
logbook in the IMMT-5 layout. It is made for the keyboard, in English and
Japanese.
.
The command kavrel-cli does the same for scripts and for the office ashore: it
reads reports and logbooks back, checks them, tells reports in plain words, and
writes WMO BUFR messages.")
include(CPack)
