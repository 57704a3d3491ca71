# One Debian package of everything that is installed.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME plenovia)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Plenovia developers")
set(CPACK_PACKAGE_CONTACT "The Plenovia developers <developers@plenovia.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "workshop for single-image random-dot stereograms")
set(CPACK_PACKAGE_DESCRIPTION
"Plenovia makes flat pictures of a repeated pattern that show a scene in
depth when the eyes diverge. Depth comes from a picture, from a depth map
drawn in its editor, or from a mathematical figure. Beside the desktop
program stands sirds, which does the same on the command line.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${plenovia_private_libraries})
# What the files of a package may be: neither the umask nor the build folder decides.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Documents as Debian wants them.
set(documents ${CMAKE_INSTALL_DATADIR}/doc/plenovia)
configure_file(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog @ONLY)
plenovia_install_compressed(${CMAKE_CURRENT_BINARY_DIR}/changelog ${documents})
install(FILES copyright DESTINATION ${documents})

include(CPack)
