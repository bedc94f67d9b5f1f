# Debian package of the product: `cmake --build build/i386 --target package`
# writes build/i386/lib<name>-jni_<version>_i386.deb.  The library goes where
# Debian's Java policy puts architecture-dependent JNI libraries
# (/usr/lib/<multiarch>/jni, on the JVM's default java.library.path), the
# package named after it with the policy's -jni suffix.
set(KX_PACKAGE_VERSION 1.0.0)
set(KX_PACKAGE_NAME lib${KX_LIBRARY_NAME}-jni)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(KX_DEB_ARCH i386)
else()
  set(KX_DEB_ARCH amd64)
endif()
set(KX_DOC_DIR share/doc/${KX_PACKAGE_NAME})

install(FILES $<TARGET_FILE:bridge> DESTINATION lib/${CMAKE_LIBRARY_ARCHITECTURE}/jni
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/copyright DESTINATION ${KX_DOC_DIR}
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# Debian wants the changelog compressed with gzip -9n (no name, no time stamp).
configure_file(${CMAKE_SOURCE_DIR}/packaging/changelog.in ${CMAKE_BINARY_DIR}/package/changelog @ONLY)
add_custom_command(
  OUTPUT ${CMAKE_BINARY_DIR}/package/changelog.gz
  COMMAND gzip -9nc ${CMAKE_BINARY_DIR}/package/changelog > ${CMAKE_BINARY_DIR}/package/changelog.gz
  DEPENDS ${CMAKE_BINARY_DIR}/package/changelog)
add_custom_target(kx_changelog ALL DEPENDS ${CMAKE_BINARY_DIR}/package/changelog.gz)
install(FILES ${CMAKE_BINARY_DIR}/package/changelog.gz DESTINATION ${KX_DOC_DIR}
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${KX_PACKAGE_NAME})
set(CPACK_PACKAGE_VERSION ${KX_PACKAGE_VERSION})
set(CPACK_PACKAGE_CONTACT "Orvane storage tools <storage-tools@orvane.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${KX_DEB_ARCH})
set(CPACK_DEBIAN_PACKAGE_SECTION java)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "JNI bridge of the disk-array utility to libpernix
The native library behind orvane.str.diskarray.DiskArrayUtilityJNI: it converts
the utility's Java records into the fixed-layout records of the disk-array
library libpernix.so, calls it, and builds Java objects from its results.

The disk-array library itself is not part of this package.")
# Depends from the library's needed libraries (dpkg-shlibdeps); libpernix.so
# is found through the link stub and, belonging to no package, adds nothing.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/stub)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
set(CPACK_STRIP_FILES OFF)  # stripped when linked: the package holds the tested file
# dpkg-shlibdeps resolves libraries for the package's architecture, not the
# build machine's.
set(KX_CPACK_ENV ${CMAKE_BINARY_DIR}/package/cpack-env.cmake)
file(WRITE ${KX_CPACK_ENV} "set(ENV{DEB_HOST_ARCH} ${KX_DEB_ARCH})\n")
set(CPACK_PROJECT_CONFIG_FILE ${KX_CPACK_ENV})
include(CPack)
