# The Debian package: `cpack -G DEB` in a build folder (scripts/check-package.sh builds and tries it).
# It holds exactly what `cmake --install` lays out, below /usr: bin/quenfor, bin/quenfor-cli, the
# files beside the program in share/quenfor (found there through ../share/quenfor), the desktop
# entry and the icon.
set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "quenfor")
set(CPACK_PACKAGE_VENDOR "quenfor")
set(CPACK_PACKAGE_CONTACT "quenfor-Entwickler")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Werkbank für CAD-Konfigurationsdateien / workbench for CAD configuration files")
# Debian wants the long description in lines of at most 80 characters; "." separates paragraphs.
string(CONCAT CPACK_PACKAGE_DESCRIPTION
    "quenfor bearbeitet die Textdateien eines parametrischen CAD-Systems\n"
    "(config.pro, config.sup, Mapkeys, Zeichnungs-Setup .dtl, Plotterdateien .pcf,\n"
    "search.pro) als Liste klassifizierter Zeilen, erklärt Optionen aus\n"
    "einer Wissensbasis, räumt Dateien auf und prüft Zeichnungen. quenfor-cli\n"
    "bietet dieselben Werkzeuge für Skripte.\n"
    ".\n"
    "quenfor edits the plain-text configuration files of a parametric CAD system\n"
    "(config.pro, config.sup, mapkeys, drawing setup .dtl, plotter files .pcf,\n"
    "search.pro) as a list of classified lines, explains options from a knowledge\n"
    "base, tidies files and checks drawings. quenfor-cli offers the same tools\n"
    "for scripts. The user interface is German.")

set(CPACK_DEBIAN_PACKAGE_NAME "quenfor")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "quenfor-Entwickler")
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_FILE_NAME "DEB-DEFAULT")
# The libraries come from dpkg-shlibdeps; the plugins Qt loads at run time are no linked library:
# a window needs a platform plugin, pictures in tif and friends the image format plugins.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-image-formats-plugins")

include(CPack)
