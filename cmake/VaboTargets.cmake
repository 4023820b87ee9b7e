# One INTERFACE target carries standard, warnings and sanitizers; two functions make the libraries and the tests.

add_library(vabo_options INTERFACE)
target_compile_features(vabo_options INTERFACE cxx_std_20)
target_compile_options(vabo_options INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # With optimisation this compiler reports overlaps in std::string that don't exist.
    target_compile_options(vabo_options INTERFACE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
endif()
target_include_directories(vabo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# What asks the system has a source for each system, which ends in its name.
if(WIN32)
    set(system Win)
else()
    set(system Posix)
endif()

foreach(sanitizer IN LISTS VABO_SANITIZE)
    target_compile_options(vabo_options INTERFACE -fsanitize=${sanitizer} -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer)
    target_link_options(vabo_options INTERFACE -fsanitize=${sanitizer})
endforeach()

if(VABO_COVERAGE)
    target_link_options(vabo_options INTERFACE --coverage)
endif()

find_program(VABO_CCACHE ccache)
if(VABO_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${VABO_CCACHE})
endif()
if(VABO_TIDY)
    find_program(VABO_CLANG_TIDY clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY ${VABO_CLANG_TIDY};--quiet;--extra-arg=-Wno-unknown-warning-option)
endif()

# vabo_library(name SOURCES … LINKS … PRIVATE_LINKS …): a static library of one layer; whoever uses it doesn't see the
# headers of the private ones.
function(vabo_library name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC vabo_options ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
    if(ARG_QT)
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    endif()
endfunction()

# vabo_program(name description SOURCES … LINKS …): an executable that is shipped. On Windows it has a version, a manifest
# and, where VABO_ICON names one, an icon.
set(VABO_LEGAL_NOTICE "Copyright (c) 2026 the maintainers")
set(VABO_ICON "" CACHE FILEPATH "The icon of the programs on Windows")
function(vabo_program target description)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${target} ${ARG_SOURCES})
    target_link_libraries(${target} PRIVATE ${ARG_LINKS})
    install(TARGETS ${target})
    if(WIN32)
        set(VABO_MANIFEST ${CMAKE_SOURCE_DIR}/tools/windows/vabo.manifest)
        string(LENGTH "${VABO_ICON}" VABO_HAS_ICON)
        configure_file(${CMAKE_SOURCE_DIR}/tools/windows/resources.rc.in ${target}.rc @ONLY)
        target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
        set(compiled_in ${VABO_MANIFEST} ${VABO_ICON})
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES OBJECT_DEPENDS "${compiled_in}")
    endif()
endfunction()

# vabo_test(name SOURCES … LINKS …): one test executable and its ctest entry. With BOTH_DRIVERS it has two entries, one
# with each driver of the data layer, labelled "embedded" and "wire"; with WIRE the second alone. tools/count-tests.sh
# counts from the results what was tested. Tests of properties with random values, which link rapidcheck, are in
# sources that end in PropertyTest.cpp.
function(vabo_test name)
    cmake_parse_arguments(ARG "QT;BOTH_DRIVERS;WIRE" "" "SOURCES;LINKS;LABELS" ${ARGN})
    if(ARG_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "vabo_test(${name}): unknown ${ARG_UNPARSED_ARGUMENTS}")
    endif()
    if(VABO_WITHOUT_PROPERTY_TESTS)
        list(FILTER ARG_SOURCES EXCLUDE REGEX "PropertyTest\\.cpp$")
        list(REMOVE_ITEM ARG_LINKS rapidcheck)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE vabo_options ${ARG_LINKS} GTest::gtest GTest::gmock)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    if(ARG_QT)
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
    endif()
    if(ARG_BOTH_DRIVERS)
        vabo_test_entry(${name} ${name} embedded --driver=embedded)
        string(REGEX REPLACE "_test$" "_wire_test" wire ${name})
        vabo_test_entry(${wire} ${name} wire --driver=wire)
    elseif(ARG_WIRE)
        vabo_test_entry(${name} ${name} wire --driver=wire)
    elseif(ARG_LABELS)
        vabo_test_entry(${name} ${name} ${ARG_LABELS})
    else()
        vabo_test_entry(${name} ${name} unit)
    endif()
endfunction()

function(vabo_test_entry entry target label)
    set(results ${CMAKE_BINARY_DIR}/test-results)
    if(CMAKE_CROSSCOMPILING)
        set(results "Z:${results}") # under Wine a path without a drive would count from the test's own folder
    endif()
    add_test(NAME ${entry} COMMAND ${target} ${ARGN})
    set_tests_properties(${entry} PROPERTIES LABELS ${label} ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;GTEST_OUTPUT=xml:${results}/${label}/${entry}.xml")
endfunction()
