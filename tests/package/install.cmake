# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# Installs the build into an empty prefix, looks at what came, and lets a foreign project use it.

set(hostVersion 2.7.18.28)
set(prefix "${WORK_FOLDER}/prefix")
set(host "${WORK_FOLDER}/foreignHost")

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGV " " command)
        string(SUBSTRING "${output}" 0 5000 output) # the first error is the one to see
        message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Fails if one of the installed files holds the path of a folder that only this machine has.
function(expect_path_in_no_file path)
    string(REGEX REPLACE "([][+.*()^$?|])" "\\\\\\1" pattern "${path}")
    foreach(file IN LISTS ARGN)
        file(STRINGS "${file}" lines REGEX "${pattern}" LIMIT_COUNT 3)
        if(lines)
            message(SEND_ERROR "${file} names ${path}:\n${lines}")
        endif()
    endforeach()
endfunction()

file(REMOVE_RECURSE "${WORK_FOLDER}")
run("${CMAKE_COMMAND}" --install "${BUILD_FOLDER}" --config "${BUILD_TYPE}" --prefix "${prefix}" --strip)

file(GLOB_RECURSE installed "${prefix}/*")
list(LENGTH installed count)
if(count LESS 10)
    message(SEND_ERROR "Only ${count} files were installed: ${installed}")
endif()
foreach(file IN LISTS installed)
    if(file MATCHES "_p\\.h$" OR file MATCHES "/include/[^/]+/platform/")
        message(SEND_ERROR "A private header was installed: ${file}")
    endif()
endforeach()
set(readable ${installed})
if(IS_INSTRUMENTED)
    list(FILTER readable EXCLUDE REGEX "\\.(so|dll)$") # the instruments' reports name sources by their full path
endif()
expect_path_in_no_file("${SOURCE_FOLDER}" ${readable})
expect_path_in_no_file("${BUILD_FOLDER}" ${readable})

set(arguments -D "CMAKE_BUILD_TYPE=${BUILD_TYPE}" -D "CMAKE_PREFIX_PATH=${prefix};${PREFIX_PATH}"
    -D "HOST_VERSION=${hostVersion}" -D "ZYX_TESTS_FOLDER=${CMAKE_CURRENT_LIST_DIR}/..")
if(TOOLCHAIN)
    # The toolchain confines the search to its own folders.
    file(WRITE "${WORK_FOLDER}/toolchain.cmake"
        "include(\"${TOOLCHAIN}\")\nlist(APPEND CMAKE_FIND_ROOT_PATH \"${prefix}\")\n")
    list(APPEND arguments -D "CMAKE_TOOLCHAIN_FILE=${WORK_FOLDER}/toolchain.cmake")
else()
    list(APPEND arguments -D "CMAKE_C_COMPILER=${C_COMPILER}" -D "CMAKE_CXX_COMPILER=${CXX_COMPILER}")
endif()
if(SANITIZE)
    list(APPEND arguments -D "CMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}" -D "CMAKE_C_FLAGS=-fsanitize=${SANITIZE}")
endif()
run("${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/foreignHost" -B "${host}" -G "${GENERATOR}" ${arguments})
run("${CMAKE_COMMAND}" --build "${host}" --config "${BUILD_TYPE}")

file(GLOB_RECURSE program "${host}/bin/foreignHost" "${host}/bin/foreignHost.exe")
run(${EMULATOR} "${program}")
foreach(expected "version ${hostVersion}" "told of someKey" "log file written")
    string(FIND "${output}" "${expected}" position)
    if(position EQUAL -1)
        message(SEND_ERROR "The host did not say '${expected}':\n${output}")
    endif()
endforeach()
