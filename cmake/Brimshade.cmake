# What all targets of the project share. One folder is one library; its headers are found as "folder/Header.h", and only
# by those that link it: a library's public include path is a folder that holds nothing but a link to its sources.
#
# The link lines are the only table of who may use whom. A folder links what its sources include: PUBLIC what its own
# headers include, PRIVATE the rest. They are written to links.json in the build folder, where tools/rules reads them.

add_library(brimshade_options INTERFACE)
# Deprecation is no error: the oldest Qt may have nothing but what a newer one deprecates.
target_compile_options(brimshade_options INTERFACE -Wall -Wextra -Wpedantic
  $<$<BOOL:${BRIMSHADE_WARNINGS_ARE_ERRORS}>:-Werror> -Wno-error=deprecated-declarations -Wnon-virtual-dtor
  -Woverloaded-virtual)
target_compile_definitions(brimshade_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
                                                       QT_NO_FOREACH QT_STRICT_ITERATORS)
if(BRIMSHADE_SANITIZER)
  # Keeps our options in the program although only the sanitizer's library calls them.
  target_compile_options(brimshade_options INTERFACE -fsanitize=${BRIMSHADE_SANITIZER} -fno-sanitize-recover=undefined
                         $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(brimshade_options INTERFACE -fsanitize=${BRIMSHADE_SANITIZER} LINKER:-u,__asan_default_options)
  add_library(brimshade_sanitizer STATIC ${CMAKE_CURRENT_LIST_DIR}/sanitizer.cpp)
  target_link_libraries(brimshade_options INTERFACE brimshade_sanitizer)
  if(BRIMSHADE_TESTS)
    set(BRIMSHADE_REPORTS ${CMAKE_BINARY_DIR}/reports) # ./test looks there
    file(MAKE_DIRECTORY ${BRIMSHADE_REPORTS})
    target_compile_definitions(brimshade_sanitizer PRIVATE BRIMSHADE_REPORTS="${BRIMSHADE_REPORTS}")
  endif()
endif()

function(_brimshade_include_root target folder)
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY ${root}/${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  target_include_directories(${target} ${ARGN} ${root})
endfunction()

# owner: the folder of a library or the source file of a program.
function(_brimshade_note_links owner target module public private)
  foreach(list public private)
    list(TRANSFORM ${list} REPLACE "(.+)" "\"\\1\"")
    list(JOIN ${list} ", " ${list})
  endforeach()
  set_property(GLOBAL APPEND PROPERTY BRIMSHADE_LINKS
    "  { \"owner\": \"${owner}\", \"target\": \"${target}\", \"module\": \"${module}\",\n    \"public\": [${public}], \"private\": [${private}] }")
endfunction()

# Call it after the last library.
function(brimshade_write_links)
  get_property(links GLOBAL PROPERTY BRIMSHADE_LINKS)
  list(JOIN links ",\n" text)
  file(WRITE ${CMAKE_BINARY_DIR}/links.json "[\n${text}\n]\n")
endfunction()

# brimshade_library(desktop/time MOC SOURCES … PUBLIC … PRIVATE …): the library of that folder, brimshade_desktop_time.
# MOC if one of its classes has Q_OBJECT, Q_GADGET or a similar macro.
function(brimshade_library folder)
  cmake_parse_arguments(arg "MOC" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  set(target brimshade_${name})
  add_library(${target} STATIC ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES AUTOMOC ${arg_MOC})
  target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} brimshade_options)
  _brimshade_include_root(${target} ${folder} PUBLIC)
  _brimshade_note_links(${folder} ${target} "" "${arg_PUBLIC}" "${arg_PRIVATE}")
endfunction()

# brimshade_qml_module(panel URI Brimshade.Panel QML_FILES … SOURCES … PUBLIC … PRIVATE …): the same as a static QML
# module. A program that uses it links brimshade_panelplugin and has Q_IMPORT_QML_PLUGIN(Brimshade_PanelPlugin).
function(brimshade_qml_module folder)
  cmake_parse_arguments(arg "" "URI" "SOURCES;PUBLIC;PRIVATE;QML_FILES;IMPORTS;RESOURCES" ${ARGN})
  string(REPLACE "." "/" path ${arg_URI})
  string(REPLACE "/" "_" name ${folder})
  set(cachegen)
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    set(cachegen NO_CACHEGEN) # only the program that people run needs QML compiled ahead of time
  endif()
  set(target brimshade_${name})
  qt_add_library(${target} STATIC)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  qt_add_qml_module(${target}
    URI ${arg_URI} VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${path}
    SOURCES ${arg_SOURCES} QML_FILES ${arg_QML_FILES} IMPORTS ${arg_IMPORTS} RESOURCES ${arg_RESOURCES}
    ${cachegen})
  target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} brimshade_options)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  _brimshade_include_root(${target} ${folder} PUBLIC)
  _brimshade_note_links(${folder} ${target} "${arg_URI}" "${arg_PUBLIC}" "${arg_PRIVATE}")
endfunction()

# brimshade_program(brimshade app/main.cpp LINK …): a program that people start.
function(brimshade_program name source)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  add_executable(${name} ${CMAKE_SOURCE_DIR}/${source})
  target_link_libraries(${name} PRIVATE ${arg_LINK} brimshade_options)
  _brimshade_note_links(${source} ${name} "" "" "${arg_LINK}")
endfunction()

# Every test has a home in the build folder instead of the user's, and sees nothing of the session in which it is
# started.
set(BRIMSHADE_TEST_HOME ${CMAKE_BINARY_DIR}/tests/home)
file(MAKE_DIRECTORY ${BRIMSHADE_TEST_HOME}/runtime)
file(CHMOD ${BRIMSHADE_TEST_HOME}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

function(_brimshade_test_properties name)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300
    ENVIRONMENT "LC_ALL=C.UTF-8;HOME=${BRIMSHADE_TEST_HOME};XDG_RUNTIME_DIR=${BRIMSHADE_TEST_HOME}/runtime"
    ENVIRONMENT_MODIFICATION
      "XDG_CACHE_HOME=unset:;XDG_CONFIG_HOME=unset:;XDG_DATA_HOME=unset:;XDG_STATE_HOME=unset:;DISPLAY=unset:;WAYLAND_DISPLAY=unset:;DBUS_SESSION_BUS_ADDRESS=unset:")
endfunction()

# The tests that run under the thread sanitizer.
add_custom_target(threaded_tests)

# brimshade_test(model MOC SOURCES … LINK …): a GoogleTest program "model_test", which is one ctest entry. NO_MAIN if
# the sources have a main of their own. THREADED if threads meet in real time.
function(brimshade_test name)
  cmake_parse_arguments(arg "MOC;NO_MAIN;THREADED" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name}_test ${arg_SOURCES})
  target_link_libraries(${name}_test PRIVATE ${arg_LINK} GTest::gtest GTest::gmock brimshade_options)
  if(NOT arg_NO_MAIN)
    target_link_libraries(${name}_test PRIVATE brimshade_testmain)
  endif()
  set_target_properties(${name}_test PROPERTIES
    AUTOMOC ${arg_MOC} RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name}_test)
  _brimshade_test_properties(${name})
  if(arg_THREADED)
    set_tests_properties(${name} PROPERTIES LABELS threaded)
    add_dependencies(threaded_tests ${name}_test)
  endif()
endfunction()

# brimshade_python_test(kill kill_test.py $<TARGET_FILE:brimshade>): a script with its arguments, which is one ctest entry.
function(brimshade_python_test name source)
  find_program(SYSTEM_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
  add_test(NAME ${name} COMMAND ${SYSTEM_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/${source} ${ARGN})
  _brimshade_test_properties(${name})
endfunction()
