# The packages of CPack: a .deb on Debian; on Windows an installer (NSIS) and a .zip, which are not tried.
set(CPACK_PACKAGE_NAME murvane)
set(CPACK_PACKAGE_VENDOR MurVane)
set(CPACK_PACKAGE_CONTACT ${MURVANE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sound levels of air-handling installations")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/pakketten)
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
  set(CPACK_GENERATOR NSIS ZIP)
  set(CPACK_PACKAGE_INSTALL_DIRECTORY MurVane)
  set(CPACK_PACKAGE_EXECUTABLES murvane MurVane)
  set(CPACK_NSIS_DISPLAY_NAME MurVane)
  set(CPACK_NSIS_MUI_ICON ${MURVANE_ICO})
  set(CPACK_NSIS_INSTALLED_ICON_NAME bin\\murvane.exe)
  set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
  set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS [[
    WriteRegStr HKCR '.mrv' '' 'MurVane.Project'
    WriteRegStr HKCR 'MurVane.Project' '' 'MurVane-project'
    WriteRegStr HKCR 'MurVane.Project\DefaultIcon' '' '$INSTDIR\bin\murvane.exe,0'
    WriteRegStr HKCR 'MurVane.Project\shell\open\command' '' '"$INSTDIR\bin\murvane.exe" "%1"']])
  set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS [[
    DeleteRegKey HKCR '.mrv'
    DeleteRegKey HKCR 'MurVane.Project']])
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_PACKAGE_SECTION science)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # The toolkit's own texts are Dutch by these; the drawings are read by a library that the linker names.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)
  # The printed form is laid out for the first's metrics; the last opens the manual and a mail.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-wayland, xdg-utils")
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"An engineer describes one air path as a chain of duct elements between a
fan and a room; MurVane works out, per octave band and in dB(A), what each
element takes away and adds, the level in the room, and reports it. The rules
are those of ISSO publication 24 and VDI 2081. The program speaks Dutch.")
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -uR -d ${MURVANE_DATUM}
                  OUTPUT_VARIABLE MURVANE_DATUM_RFC OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  configure_file(changelog.Debian.in ${gemaakt}/changelog.Debian @ONLY)
  set(MURVANE_CHANGELOG ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
  set(MURVANE_CHANGELOG_DEBIAN ${gemaakt}/changelog.Debian)
  configure_file(deb-afwerking.cmake.in ${gemaakt}/deb-afwerking.cmake @ONLY)
  set(CPACK_PRE_BUILD_SCRIPTS ${gemaakt}/deb-afwerking.cmake)
endif()
include(CPack)
