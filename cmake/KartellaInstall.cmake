# What `cmake --install` puts where, and the Debian package CPack makes of it
# (scripts/package). The program finds its data files in <prefix>/share/kartella
# (src/support/DataFiles.h).
include(GNUInstallDirs)

set(KARTELLA_APP_ID org.kartella.Kartella)
set(share ${PROJECT_SOURCE_DIR}/share)

install(TARGETS kartella kartella-db RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS kartella-scanner RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/kartella)
install(FILES ${share}/snow.ico DESTINATION ${CMAKE_INSTALL_DATADIR}/kartella)
install(FILES ${share}/icons/kartella-256.png DESTINATION ${CMAKE_INSTALL_DATADIR}/kartella RENAME kartella.png)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES ${share}/icons/kartella-${size}.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME kartella.png)
endforeach()
install(FILES ${share}/icons/kartella.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${share}/applications/${KARTELLA_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

configure_file(${share}/metainfo/${KARTELLA_APP_ID}.metainfo.xml
    ${PROJECT_BINARY_DIR}/share/${KARTELLA_APP_ID}.metainfo.xml @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/share/${KARTELLA_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
configure_file(${share}/man/kartella-db.1 ${PROJECT_BINARY_DIR}/share/kartella-db.1 @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/share/kartella-db.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kartella)
set(CPACK_PACKAGE_VENDOR Kartella)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "document register for a small office")
set(CPACK_PACKAGE_DESCRIPTION
    "Kartella registers and files the documents of one user or a small workgroup: registration\n\
index, category, sender or receiver, direction, dates, notes and reminders; files made from\n\
office templates or attached; an explorer by category or contact, an address book and reports.")
set(CPACK_PACKAGE_CONTACT "Kartella developers <kartella@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION office)
# The libraries (Qt 6, SQLite, ...) come from dpkg-shlibdeps; the rest is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, shared-mime-info")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "libreoffice-writer, libreoffice-calc, libreoffice-impress, cups-client, adwaita-icon-theme, xdg-utils, \
libsane1, tesseract-ocr-lit, tesseract-ocr-eng, catdoc, qt6-translations-l10n")
include(CPack)
