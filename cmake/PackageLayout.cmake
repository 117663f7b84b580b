# cpack reads this for each generator. A Debian package has the layout of a system, an archive is one folder.
if(CPACK_GENERATOR STREQUAL "DEB")
  list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Loquitor;system;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
