# What every library of the project shares. One folder is one library; another folder's headers are
# found as "folder/Header.h", and only by those that link it: a library's public include path is a folder
# that holds nothing but a link to its sources.

add_library(brimshade_options INTERFACE)
target_compile_options(brimshade_options INTERFACE -Wall -Wextra -Wpedantic -Werror -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(brimshade_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                       QT_NO_FOREACH QT_STRICT_ITERATORS)
if(BRIMSHADE_SANITIZER)
  target_compile_options(brimshade_options INTERFACE -fsanitize=${BRIMSHADE_SANITIZER} -Wno-maybe-uninitialized)
  target_link_options(brimshade_options INTERFACE -fsanitize=${BRIMSHADE_SANITIZER})
endif()

function(_brimshade_include_root target folder)
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY ${root}/${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  target_include_directories(${target} ${ARGN} ${root})
endfunction()

# brimshade_library(desktop/time SOURCES … LINK …): the library of that folder, brimshade_desktop_time.
function(brimshade_library folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  add_library(brimshade_${name} STATIC ${arg_SOURCES})
  target_link_libraries(brimshade_${name} PUBLIC ${arg_LINK} PRIVATE brimshade_options)
  _brimshade_include_root(brimshade_${name} ${folder} PUBLIC)
endfunction()

# brimshade_qml_module(panel URI Brimshade.Panel QML_FILES … SOURCES … LINK …): the same as a static QML module.
# Whoever runs it links brimshade_panelplugin and says Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin).
function(brimshade_qml_module folder)
  cmake_parse_arguments(arg "" "URI" "SOURCES;LINK;QML_FILES;IMPORTS;RESOURCES" ${ARGN})
  string(REPLACE "." "/" path ${arg_URI})
  string(REPLACE "/" "_" name ${folder})
  set(cachegen)
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    set(cachegen NO_CACHEGEN) # ahead-of-time compilation of QML is for the program that people run
  endif()
  set(target brimshade_${name})
  qt_add_library(${target} STATIC)
  qt_add_qml_module(${target}
    URI ${arg_URI} VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${path}
    SOURCES ${arg_SOURCES} QML_FILES ${arg_QML_FILES} IMPORTS ${arg_IMPORTS} RESOURCES ${arg_RESOURCES}
    ${cachegen})
  target_link_libraries(${target} PUBLIC ${arg_LINK} PRIVATE brimshade_options)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  _brimshade_include_root(${target} ${folder} PUBLIC)
endfunction()

# brimshade_test(model SOURCES … LINK …): a GoogleTest program "model_test", one ctest entry a test case.
# NO_MAIN when the sources bring a main of their own; FOLDER marks where its shared headers live.
function(brimshade_test name)
  cmake_parse_arguments(arg "NO_MAIN" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name}_test ${arg_SOURCES})
  target_link_libraries(${name}_test PRIVATE ${arg_LINK} GTest::gtest GTest::gmock brimshade_options)
  if(NOT arg_NO_MAIN)
    target_link_libraries(${name}_test PRIVATE brimshade_testmain)
  endif()
  set_target_properties(${name}_test PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name}_test)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;LC_ALL=C.UTF-8" TIMEOUT 300)
endfunction()
