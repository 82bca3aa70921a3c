# What "cpack" makes the Debian package zarn_VERSION-1_ARCHITECTURE.deb with; packaging/make-deb builds and checks it.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zarn)
set(CPACK_PACKAGE_VENDOR "The ZARN developers")
set(CPACK_PACKAGE_CONTACT "The ZARN developers <zarn@packages.invalid>")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/package")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "after-flight review of engine recordings")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "ZARN reads the memory card of a light aircraft's engine management unit and
shows what a pilot, a mechanic or an engine maker looks for: power cycles and
flights, every parameter in engineering units, exceeded limits, warning lamps
and faults, the statistic of a tow, and the flight path on a map.
.
It exports to CSV, KML and GPX. The program zarn-cli does the same for scripts,
without a display.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Loaded while the program runs, so that no linker knows of them: the software renderer for machines without a driver, a font.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libgl1-mesa-dri, fonts-dejavu-core")
