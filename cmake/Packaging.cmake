# What `cmake --install` puts where, and the Debian package that `cpack` makes of it in the build folder.

include(GNUInstallDirs)
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(documents "${CMAKE_INSTALL_DATAROOTDIR}/doc/vantelos")

install(TARGETS vantelos vantelos-console)
install(PROGRAMS "${packaging}/vantelos-launcher" DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES "${packaging}/vantelos.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${packaging}/net.vantelos.vantelos.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${packaging}/vantelos.svg" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/" DESTINATION "${documents}"
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${documents}")
# Where the launcher looks for it from its own folder.
install(FILES "${packaging}/vantini.txt" DESTINATION share/vantelos)

# Debian keeps manuals and changelogs compressed, without the time at which that was done.
function(vantelos_install_compressed file folder)
    cmake_path(GET file FILENAME name)
    set(compressed "${PROJECT_BINARY_DIR}/packaging/${name}.gz")
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/packaging")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    execute_process(COMMAND gzip -9nc "${file}" OUTPUT_FILE "${compressed}" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${compressed}" DESTINATION "${folder}")
endfunction()

vantelos_install_compressed("${packaging}/vantelos.1" "${CMAKE_INSTALL_MANDIR}/man1")
vantelos_install_compressed("${packaging}/vantelos-launcher.1" "${CMAKE_INSTALL_MANDIR}/man1")
vantelos_install_compressed("${packaging}/vantelos-console.1" "${CMAKE_INSTALL_MANDIR}/man1")
vantelos_install_compressed("${packaging}/changelog" "${documents}")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${documents}" RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantelos)
set(CPACK_PACKAGE_VENDOR "The Vantelos authors")
set(CPACK_PACKAGE_CONTACT "The Vantelos authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "race time predictor for runners and coaches")
set(CPACK_PACKAGE_DESCRIPTION
"Vantelos fits a physical model of a runner's speed against distance to one to
five races that the runner has run, and predicts times and paces over other
distances, each with a performance level that says how good it is.

It comes as a program with windows, and as a command, vantelos-console, for
scripts and for whole teams.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# What the programs link to is found out; libqt6svg6, found so, brings what shows the icon. The font is for the tables.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
