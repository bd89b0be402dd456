# The Debian package: `cpack -G DEB` in the build folder writes tamo_VERSION_ARCH.deb.
# The libraries come from dpkg-shlibdeps; what Tamo starts or loads by name is listed here.

set(CPACK_PACKAGE_NAME tamo)
set(CPACK_PACKAGE_VENDOR "The Tamo developers")
set(CPACK_PACKAGE_CONTACT "The Tamo developers <hello@tamo.app>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "invoices, quotes and XRechnung e-invoices for freelancers")
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "Tamo writes invoices and quotes for freelancers and small businesses: documents with line "
    "items, clients and an item catalog in a local store, print-ready designs turned into PDF, "
    "totals with discount, shipping and up to three taxes, payment states, German XRechnung 3.0 "
    "e-invoices, a sales report and an account book, and backups. Every action of the window "
    "can also be run from the tamo command line.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://tamo.app/")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION office)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The page renderer's helper process, the window system and SVG plugins, the mail and file
# hand-offs, and a font for the designs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6webenginecore6-bin, qt6-qpa-plugins, libqt6svg6, xdg-utils, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups-client")

include(CPack)
