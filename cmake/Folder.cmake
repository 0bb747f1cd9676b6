# quillon_folder(NAME [DEPENDS target...] [LINKS target...]): the sources of the calling folder as the
# static library quillon_NAME. It may include what it depends on; what it only links defines actions
# of the store, which is declared elsewhere. Each header is also compiled alone (target
# all_verify_interface_header_sets).
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

function(quillon_folder NAME)
    cmake_parse_arguments(ARG "" "" "DEPENDS;LINKS" ${ARGN})
    file(GLOB SOURCES CONFIGURE_DEPENDS *.cpp)
    file(GLOB HEADERS CONFIGURE_DEPENDS *.h)
    set(KIND PUBLIC)
    if(SOURCES)
        add_library(quillon_${NAME} STATIC ${SOURCES})
        target_precompile_headers(quillon_${NAME} REUSE_FROM quillon_precompiled)
    else()
        set(KIND INTERFACE)
        add_library(quillon_${NAME} INTERFACE)
    endif()
    target_sources(quillon_${NAME} ${KIND}
        FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${HEADERS})
    target_link_libraries(quillon_${NAME} ${KIND} quillon_compiler ${ARG_DEPENDS} ${ARG_LINKS})

    # For the test that compares includes with DEPENDS: "core: state desktop +send".
    list(TRANSFORM ARG_LINKS REPLACE ^quillon_ quillon_+)
    set(FOLDERS ${ARG_DEPENDS} ${ARG_LINKS})
    list(FILTER FOLDERS INCLUDE REGEX ^quillon_)
    list(TRANSFORM FOLDERS REPLACE ^quillon_ "")
    list(TRANSFORM FOLDERS REPLACE _ /)
    list(JOIN FOLDERS " " FOLDERS)
    string(REPLACE _ / FOLDER ${NAME})
    set_property(GLOBAL APPEND PROPERTY QUILLON_FOLDERS "${FOLDER}: ${FOLDERS}")
endfunction()

# quillon_test(NAME [DEPENDS target...]): the sources of the calling folder as one GoogleTest program,
# each of its cases a test of its own for ctest.
function(quillon_test NAME)
    cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
    file(GLOB SOURCES CONFIGURE_DEPENDS *.cpp *.h)
    add_executable(test_${NAME} ${SOURCES})
    target_precompile_headers(test_${NAME} REUSE_FROM quillon_precompiled)
    target_link_libraries(test_${NAME} PRIVATE
        quillon_compiler quillon_test_support ${ARG_DEPENDS} GTest::gmock)
    target_include_directories(test_${NAME} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    if(QUILLON_SANITIZE MATCHES thread)
        target_sources(test_${NAME} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/tsan/Clone.cpp)
        target_link_options(test_${NAME} PRIVATE -Wl,--export-dynamic-symbol=clone)
    endif()
    gtest_discover_tests(test_${NAME} TEST_PREFIX ${NAME}/ DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT 120)
endfunction()
