# The Debian package: cmake --build --preset package, then cpack -G DEB; scripts/make-package does
# both. The libraries come from what the program is linked with, the rest is what it loads.

set(CPACK_PACKAGE_NAME curvegrab)
set(CPACK_PACKAGE_VENDOR "Curvegrab X")
set(CPACK_PACKAGE_CONTACT "Curvegrab X maintainers <maintainers@curvegrab.invalid>"
    CACHE STRING "The maintainer of the package")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "digitizer for the pictures of charts")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Curvegrab X turns the picture of a chart into numbers. Open a scan, a
screenshot or a photo of a chart, or a page of a PDF file, drag the anchors
onto its axes and type their values, click the data points, and take the
numbers away.

The axes may be parallel, those of a chart photographed at an angle, or
polar; linear or logarithmic. Ten data series are kept in a document. Data
can be exported on the command line, without a display.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plugins that the toolkit loads: TIFF and WebP pictures, and windows on a Wayland desktop; and its own
# words in other languages. The other recommended ones let the desktop know of our file type, entry
# and icons.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins (>= 6.4)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "qt6-wayland (>= 6.4), qt6-translations-l10n (>= 6.4), shared-mime-info, desktop-file-utils, hicolor-icon-theme")

set(documentation ${CMAKE_CURRENT_BINARY_DIR}/debian)
configure_file(debian/changelog.in ${documentation}/changelog.Debian @ONLY)
configure_file(debian/FinishTree.cmake.in ${documentation}/FinishTree.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${documentation}/FinishTree.cmake)
include(CPack)
