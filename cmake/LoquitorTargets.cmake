# Sets warnings, sanitizers and the include root. Called for every target of the project.
function(loquitor_configure target)
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_compile_features(${target} PUBLIC cxx_std_20)  # for projects that include this one
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                                           -Woverloaded-virtual)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 warns falsely of overlapping copies in "literal" + string (its bug 105651).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(LOQUITOR_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(LOQUITOR_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${LOQUITOR_SANITIZE} -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${LOQUITOR_SANITIZE})
  endif()
endfunction()

# A static library of the project: loquitor_library(name SOURCES a.cpp b.cpp LINK lib1 lib2)
function(loquitor_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  if(NOT ARG_SOURCES)  # a folder without sources
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${target}_empty.cpp" "")
    set(ARG_SOURCES "${CMAKE_CURRENT_BINARY_DIR}/${target}_empty.cpp")
  endif()
  add_library(${target} STATIC ${ARG_SOURCES})
  target_link_libraries(${target} PUBLIC ${ARG_LINK})
  loquitor_configure(${target})
endfunction()

# An installed program, built into bin/.
function(loquitor_program target)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LINK})
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${LOQUITOR_BIN}")
  target_compile_definitions(${target} PRIVATE
    LOQUITOR_VERSION="${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
  if(WIN32)  # its icon and version, as the Explorer shows them
    configure_file("${PROJECT_SOURCE_DIR}/dist/program.rc.in" ${target}.rc @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  endif()
  loquitor_configure(${target})
endfunction()

# A GoogleTest program. CTest finds its cases.
# MAIN: the program has a main of its own. The window tests do, for QApplication.
function(loquitor_test target)
  cmake_parse_arguments(ARG "MAIN" "" "SOURCES;LINK" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE ${ARG_LINK} GTest::gmock)
  if(NOT ARG_MAIN)
    target_link_libraries(${target} PRIVATE GTest::gtest_main)
  endif()
  loquitor_configure(${target})
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 DISCOVERY_MODE PRE_TEST
                       PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
