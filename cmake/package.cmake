# What is installed, and the Debian package of it. Pictures, manual and compressed pages are made by
# ./package, which puts them below share/ of the build directory as they lie below /usr/share.
install(TARGETS torvena torvena-setup torvena-stand RUNTIME DESTINATION bin)
install(CODE "
    foreach(program torvena torvena-setup torvena-stand)
        execute_process(COMMAND \"${CMAKE_STRIP}\" -R .comment -R .note
                                \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/\${program}\"
                        COMMAND_ERROR_IS_FATAL ANY)
    endforeach()") # as Debian strips, which leaves less than CPACK_STRIP_FILES
install(FILES "${CMAKE_SOURCE_DIR}/packaging/torvena.desktop" DESTINATION share/applications)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/org.example.torvena.metainfo.xml" DESTINATION share/metainfo)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/icons/torvena.svg" DESTINATION share/icons/hicolor/scalable/apps)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/copyright" "${CMAKE_SOURCE_DIR}/docs/stand.md"
        DESTINATION share/doc/torvena)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/doc-base.handbuch" DESTINATION share/doc-base
        RENAME torvena.torvena-handbuch)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/doc-base.manual" DESTINATION share/doc-base
        RENAME torvena.torvena-manual)
install(FILES "${CMAKE_SOURCE_DIR}/packaging/lintian-overrides" DESTINATION share/lintian/overrides
        RENAME torvena)
install(DIRECTORY "${CMAKE_BINARY_DIR}/share" DESTINATION . OPTIONAL)

set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON) # the three programs, not benchmarks and tools
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvena)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The torvena developers <torvena@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "operator's workstation of an ergometer calibration stand")
set(CPACK_PACKAGE_DESCRIPTION
"A motor-driven torque reference is coupled to a crank ergometer, a medical
device or a training bike. torvena drives each step of a recipe, judges what
the reference measures against the permissible deviation, with and without
measurement uncertainty, stores it, and makes protocols. German and English,
one operator, one embedded database.
.
A simulated stand is included, so that everything can be tried without one.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://torvena.example/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT) # native: packaging is part of the source
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS mdbtools) # torvena-setup --aus-jet
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
