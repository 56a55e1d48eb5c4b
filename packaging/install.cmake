# SPDX-License-Identifier: MIT
# Installs the program; read-only in its place, it finds its data files in share/sorvane.
include(GNUInstallDirs)
install(TARGETS sorvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/sorvane
    PATTERN CMakeLists.txt EXCLUDE)
install(FILES ${CMAKE_SOURCE_DIR}/packaging/sorvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/icons/sorvane.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# Table drafts: their type, and the icon that bears the type's name.
install(FILES ${CMAKE_SOURCE_DIR}/packaging/sorvane.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${CMAKE_SOURCE_DIR}/icons/file_table.svg RENAME application-x-sorvane-table.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_PACKAGE_NAME sorvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Sorvane <sorvane@example.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for hand-written web pages")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
