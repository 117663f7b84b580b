# Everything in one folder, which can be anywhere. Loquitor keeps its files there.
foreach(program Loquitor loquitor-say virtual-orvatone)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION .)
  endif()
endforeach()
install(PROGRAMS dist/register-desktop dist/loquitor-virtual DESTINATION .)
install(FILES dist/org.loquitor.Loquitor.desktop dist/org.loquitor.VirtualOrvatone.desktop
              dist/org.loquitor.Loquitor.svg dist/org.loquitor.Loquitor.metainfo.xml DESTINATION share)
install(FILES README.md CONTRIBUTING.md LICENSE DESTINATION .)
install(DIRECTORY docs/ DESTINATION docs FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN man EXCLUDE)

# The user changes the dictionary, so installing again must not replace it.
install(CODE "
  set(dictionary \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Loquitor.Dic\")
  if(NOT EXISTS \"\${dictionary}\")
    file(INSTALL \"${PROJECT_SOURCE_DIR}/data/Loquitor.Dic\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}\")
  endif()
")

# The same files in the standard places of a system, for a package. This component is installed only on
# request: cmake --install build --component system --prefix /usr
set(in_system COMPONENT system EXCLUDE_FROM_ALL)
foreach(program Loquitor loquitor-say virtual-orvatone)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION bin ${in_system})
  endif()
endforeach()
install(PROGRAMS dist/loquitor-virtual DESTINATION bin ${in_system})
install(FILES dist/org.loquitor.Loquitor.desktop dist/org.loquitor.VirtualOrvatone.desktop
        DESTINATION share/applications ${in_system})
install(FILES dist/org.loquitor.Loquitor.svg DESTINATION share/icons/hicolor/scalable/apps ${in_system})
install(FILES dist/org.loquitor.Loquitor.metainfo.xml DESTINATION share/metainfo ${in_system})
install(FILES data/Loquitor.Dic DESTINATION share/loquitor ${in_system})
install(FILES docs/man/loquitor-say.1 docs/man/virtual-orvatone.1 DESTINATION share/man/man1 ${in_system})
install(FILES README.md CONTRIBUTING.md LICENSE DESTINATION share/doc/loquitor ${in_system})
install(FILES LICENSE DESTINATION share/doc/loquitor RENAME copyright ${in_system})
install(DIRECTORY docs/ DESTINATION share/doc/loquitor/docs ${in_system}
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN man EXCLUDE)

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME Loquitor)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Loquitor developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DESCRIPTION_FILE "${PROJECT_SOURCE_DIR}/dist/description.txt")
set(CPACK_PACKAGE_FILE_NAME "Loquitor-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME loquitor)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackageLayout.cmake")
include(CPack)
