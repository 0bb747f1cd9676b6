# quillon_loads(TARGET PREFIX): the target is compiled with the headers of the library that pkg-config
# has found as PREFIX, and loads it when it is needed, by the name that the macro QUILLON_PREFIX has
# (base/LateLibrary.h). Debian's package has to name the library among what it depends on.
function(quillon_loads TARGET PREFIX)
    list(GET ${PREFIX}_LINK_LIBRARIES 0 LIBRARY)
    file(REAL_PATH ${LIBRARY} FILE)
    if(NOT FILE MATCHES "([^/]+\\.so\\.[0-9]+)[^/]*$")
        message(FATAL_ERROR "${LIBRARY} is no shared library")
    endif()
    set_property(GLOBAL APPEND PROPERTY QUILLON_LATE ${FILE})
    target_compile_definitions(${TARGET} PUBLIC QUILLON_${PREFIX}="${CMAKE_MATCH_1}")
    target_include_directories(${TARGET} SYSTEM PUBLIC ${${PREFIX}_INCLUDE_DIRS})
endfunction()
