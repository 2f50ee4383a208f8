# Read by cpack once for each kind of package: which component goes into it.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(component system)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(component portable)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build_folder};Orvinel;${component};/")
