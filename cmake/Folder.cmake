# quillon_folder(NAME [DEPENDS target...]): the sources of the calling folder as the static library
# quillon_NAME. Each header is also compiled alone (target all_verify_interface_header_sets).
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

function(quillon_folder NAME)
    cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
    file(GLOB SOURCES CONFIGURE_DEPENDS *.cpp)
    file(GLOB HEADERS CONFIGURE_DEPENDS *.h)
    set(KIND PUBLIC)
    if(SOURCES)
        add_library(quillon_${NAME} STATIC ${SOURCES})
    else()
        set(KIND INTERFACE)
        add_library(quillon_${NAME} INTERFACE)
    endif()
    target_sources(quillon_${NAME} ${KIND}
        FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${HEADERS})
    target_link_libraries(quillon_${NAME} ${KIND} quillon_compiler ${ARG_DEPENDS})
endfunction()

# quillon_test(NAME [DEPENDS target...]): the sources of the calling folder as one GoogleTest program,
# each of its cases a test of its own for ctest.
function(quillon_test NAME)
    cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
    file(GLOB SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    add_executable(test_${NAME} ${SOURCES})
    target_link_libraries(test_${NAME} PRIVATE
        quillon_compiler quillon_test_support ${ARG_DEPENDS} GTest::gmock)
    target_include_directories(test_${NAME} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    gtest_discover_tests(test_${NAME} TEST_PREFIX ${NAME}/ DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT 120)
endfunction()
