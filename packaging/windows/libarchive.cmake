# libarchive as packaging/windows/build-libarchive makes it: it goes into each program, with the zlib that it uses.
find_library(LibArchive_LIBRARY libarchive_static.a)
find_library(ORVINEL_ZLIB libz.a)
find_package(LibArchive)
if(LibArchive_FOUND)
  set_property(TARGET LibArchive::LibArchive APPEND PROPERTY INTERFACE_COMPILE_DEFINITIONS LIBARCHIVE_STATIC)
  set_property(TARGET LibArchive::LibArchive APPEND PROPERTY INTERFACE_LINK_LIBRARIES ${ORVINEL_ZLIB})
endif()
