# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT

# The language of the file that a stamp adds; a project of C++ alone would leave it out without a word.
if(WIN32)
    enable_language(RC)
else()
    enable_language(C)
endif()

# zyx_stamp_version(target a.b.c.d)
#
# Puts a version into a program or module, where UtilsDll::binaryFileVersionByProcessName finds it: the version resource
# on Windows, elsewhere an ELF note in the section ".note.zyx.version".
function(zyx_stamp_version target version)
    set(number "(0|[1-9][0-9]?[0-9]?[0-9]?[0-9]?)")
    if(NOT version MATCHES "^${number}\\.${number}\\.${number}\\.${number}$")
        message(FATAL_ERROR "zyx_stamp_version: '${version}' is not of the form a.b.c.d")
    endif()
    set(ZYX_STAMP_MAJOR ${CMAKE_MATCH_1})
    set(ZYX_STAMP_MINOR ${CMAKE_MATCH_2})
    set(ZYX_STAMP_BUILD ${CMAKE_MATCH_3})
    set(ZYX_STAMP_REVISION ${CMAKE_MATCH_4})
    set(ZYX_STAMP_TEXT ${version})
    set(ZYX_STAMP_NAME ${target})
    foreach(part MAJOR MINOR BUILD REVISION)
        if(ZYX_STAMP_${part} GREATER 65535)
            message(FATAL_ERROR "zyx_stamp_version: ${ZYX_STAMP_${part}} in '${version}' is larger than 65535")
        endif()
    endforeach()
    set(templates "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/versionStamp")
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/versionStamp/${target}")
    if(WIN32)
        configure_file("${templates}/version.rc.in" "${folder}/version.rc" @ONLY)
        target_sources(${target} PRIVATE "${folder}/version.rc")
    else()
        configure_file("${templates}/version.c.in" "${folder}/version.c" @ONLY)
        # apart: the target's precompiled headers know nothing of C
        add_library(${target}-versionStamp OBJECT "${folder}/version.c")
        set_target_properties(${target}-versionStamp PROPERTIES POSITION_INDEPENDENT_CODE ON)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}-versionStamp>)
    endif()
endfunction()
