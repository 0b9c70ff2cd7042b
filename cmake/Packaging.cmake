# Installation (freedesktop layout under /usr) and the Debian package made by
# CPack: talu, talu-cli, the capture helper in libexec, the desktop entry,
# metainfo, file types, icons, man pages and the changelog. scripts/package
# builds it; the capture right is given in the package's postinst.
include(GNUInstallDirs)
set(TALU_DIST ${PROJECT_SOURCE_DIR}/dist/linux)
set(TALU_GENERATED ${PROJECT_BINARY_DIR}/dist)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

if(TARGET talu)
    install(TARGETS talu RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(TARGETS talu-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET talu-capture)
    install(TARGETS talu-capture RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/talu)
endif()

install(FILES ${TALU_DIST}/com.torvane.Talu.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${TALU_DIST}/com.torvane.Talu.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(DIRECTORY ${TALU_DIST}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

# One source for the release history: the notes the program shows, the
# metainfo's releases and the package changelog.
set(TALU_NOTES ${PROJECT_SOURCE_DIR}/docs/release-notes.md)
add_custom_command(
    OUTPUT ${TALU_GENERATED}/com.torvane.Talu.metainfo.xml ${TALU_GENERATED}/changelog.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${TALU_GENERATED}
    COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/release-notes.py --metainfo
            --template ${TALU_DIST}/com.torvane.Talu.metainfo.xml.in
            --output ${TALU_GENERATED}/com.torvane.Talu.metainfo.xml
    COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/release-notes.py --changelog talu
            --output ${TALU_GENERATED}/changelog
    COMMAND gzip -9nf ${TALU_GENERATED}/changelog
    DEPENDS ${TALU_NOTES} ${TALU_DIST}/com.torvane.Talu.metainfo.xml.in ${PROJECT_SOURCE_DIR}/scripts/release-notes.py
    COMMENT "Release history for the metainfo and the changelog")
set(TALU_PACKAGE_FILES ${TALU_GENERATED}/com.torvane.Talu.metainfo.xml ${TALU_GENERATED}/changelog.gz)

# Man pages from the programs' own --help (help2man, when installed).
find_program(HELP2MAN help2man)
if(HELP2MAN)
    set(pages talu-cli "the headless companion of Torvane TALU")
    if(TARGET talu)
        list(APPEND pages talu "see what an LED installation shows for a stream of Art-Net DMX data")
    endif()
    while(pages)
        list(POP_FRONT pages program summary)
        add_custom_command(
            OUTPUT ${TALU_GENERATED}/${program}.1.gz
            COMMAND ${CMAKE_COMMAND} -E make_directory ${TALU_GENERATED}
            COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
                    ${HELP2MAN} --no-info --no-discard-stderr --name "${summary}"
                    --output ${TALU_GENERATED}/${program}.1 $<TARGET_FILE:${program}>
            COMMAND gzip -9nf ${TALU_GENERATED}/${program}.1
            DEPENDS ${program}
            COMMENT "Man page of ${program}")
        list(APPEND TALU_PACKAGE_FILES ${TALU_GENERATED}/${program}.1.gz)
        install(FILES ${TALU_GENERATED}/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endwhile()
endif()
add_custom_target(talu_package_files ALL DEPENDS ${TALU_PACKAGE_FILES})
install(FILES ${TALU_GENERATED}/com.torvane.Talu.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${TALU_GENERATED}/changelog.gz ${TALU_DIST}/debian/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/talu)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME talu)
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Art-Net lighting network tester and LED installation monitor")
set(CPACK_PACKAGE_DESCRIPTION
    "Torvane TALU shows, on a dark on-screen monitor, what an LED installation\n"
    "displays for a stream of Art-Net DMX data: from a recording played at a\n"
    "chosen rate, or live while the program acts as an Art-Net node. It reads\n"
    "native, MADRIX and ELM patches, verifies GPS-Sync recording sets, records\n"
    "the live stream and keeps a packet log with a display filter. talu-cli\n"
    "offers every capability without a display.")
string(REPLACE ";" "" CPACK_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Torvane <support@torvane.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://torvane.example/talu")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What shlibdeps cannot see: Qt's platform plugins (loaded at run time), and
# the tools the postinst gives the capture right with.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libcap2-bin, adduser")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${TALU_DIST}/debian/postinst ${TALU_DIST}/debian/postrm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
