# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# A room's build file is a list; these functions do the work.

# zyx_room(HEADERS a.h b.h  SOURCES a.cpp b.cpp a_p.h)
#
# Adds the files of the calling folder to the library. HEADERS are public: installed under their path from modules/,
# each checked to compile alone.
function(zyx_room)
    cmake_parse_arguments(PARSE_ARGV 0 ROOM "" "" "HEADERS;SOURCES")
    list(TRANSFORM ROOM_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(TRANSFORM ROOM_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    target_sources(UtilsDllzglv6
        PUBLIC
            FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/modules" FILES ${ROOM_HEADERS}
        PRIVATE
            ${ROOM_SOURCES}
    )
endfunction()

# zyx_test(tst_Name [LIBRARIES ...] [SOURCES ...] [ENVIRONMENT ...] [TIMEOUT s])
#
# One test program of the calling folder, tst_Name.cpp, run by CTest as "<folder>.tst_Name" on the offscreen platform.
function(zyx_test name)
    cmake_parse_arguments(PARSE_ARGV 1 TEST "" "TIMEOUT" "LIBRARIES;SOURCES;ENVIRONMENT")
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 300)
    endif()
    get_filename_component(room "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    add_executable(${name} ${name}.cpp ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE zyxTestSupport Zyx::UtilsDllzglv6 Qt6::Test ${TEST_LIBRARIES})
    zyx_target_defaults(${name})
    target_precompile_headers(${name} REUSE_FROM zyxTestSupport)
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp" PROPERTIES
        SKIP_PRECOMPILE_HEADERS ON) # as good as empty
    add_test(NAME ${room}.${name} COMMAND ${name})
    set_tests_properties(${room}.${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${TEST_ENVIRONMENT}"
        LABELS "${room}"
        TIMEOUT ${TEST_TIMEOUT}
    )
endfunction()
