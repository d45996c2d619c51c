# Debian's package of what is installed. What has to be there besides is added by stage.cmake.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessel)
# An address that reaches nobody: whoever publishes the package puts a real one here.
set(CPACK_PACKAGE_CONTACT "Tessel maintainers <maintainers@tessel.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/stage.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils) # opens the guide
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "wizard for divisible halls of networked conference systems")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Configures a hall whose movable partitions divide it into up to four rooms,
each with a conference system of its own. In nine steps an installer draws
the rooms, finds and places the devices, defines the layouts, and installs
one preset per layout into every hub, so that recalling one preset switches
the whole hall.
.
Beside the wizard (tessel) there are its field kit for the terminal
(tesselctl) and a simulated hall to train on (tessel-hall).")

include(CPack)
