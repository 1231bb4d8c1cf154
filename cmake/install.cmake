# Where an installation has what. The program finds the module and its own libraries beside itself, so
# that all of them lie in one folder, which can be moved with the rest, and `bin` has a link to it.

include(GNUInstallDirs)
set(program_folder ${CMAKE_INSTALL_LIBDIR}/rotavue)
set(texts_folder ${CMAKE_INSTALL_DATADIR}/doc/rotavue)

install(TARGETS rotavue RUNTIME DESTINATION ${program_folder})
install(TARGETS Rotavue64 rotavue_studio rotavue_window_module LIBRARY DESTINATION ${program_folder})

file(RELATIVE_PATH program /${CMAKE_INSTALL_BINDIR} /${program_folder}/rotavue)
file(CREATE_LINK ${program} ${PROJECT_BINARY_DIR}/rotavue-link SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/rotavue-link DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME rotavue)

install(FILES packaging/rotavue.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/rotavue-view.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES packaging/rotavue.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES README.md LICENSE CHANGELOG.md DESTINATION ${texts_folder})
install(DIRECTORY docs/ DESTINATION ${texts_folder}/docs PATTERN make-* EXCLUDE)
