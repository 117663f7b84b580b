# Loquitor runs from one folder with its files beside it, anywhere in the user's home.
foreach(program Loquitor loquitor-say virtual-orvatone)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION .)
  endif()
endforeach()
install(PROGRAMS dist/register-desktop DESTINATION .)
install(FILES dist/org.loquitor.Loquitor.desktop dist/org.loquitor.Loquitor.svg
              dist/org.loquitor.Loquitor.metainfo.xml DESTINATION share)
install(FILES README.md CONTRIBUTING.md LICENSE DESTINATION .)
install(DIRECTORY docs/ DESTINATION docs FILES_MATCHING PATTERN "*.md" PATTERN "*.png")

# The starter dictionary becomes the owner's at once: installing again must not put it back.
install(CODE "
  set(dictionary \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Loquitor.Dic\")
  if(NOT EXISTS \"\${dictionary}\")
    file(INSTALL \"${PROJECT_SOURCE_DIR}/data/Loquitor.Dic\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}\")
  endif()
")

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME Loquitor)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_FILE_NAME "Loquitor-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
include(CPack)
