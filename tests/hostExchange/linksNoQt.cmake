# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# Fails if PROGRAM needs a library of Qt. OBJDUMP lists the libraries, of an ELF file and of a Windows program alike.

execute_process(COMMAND "${OBJDUMP}" -p "${PROGRAM}" OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(NEEDED +|DLL Name: )[^\n]+" libraries "${headers}")
if(NOT libraries)
    message(FATAL_ERROR "${PROGRAM}: no library is listed at all")
endif()
foreach(library IN LISTS libraries)
    string(REGEX REPLACE "^(NEEDED +|DLL Name: )(lib)?" "" library "${library}")
    if(library MATCHES "^Qt")
        message(FATAL_ERROR "${PROGRAM} links ${library}")
    endif()
endforeach()
