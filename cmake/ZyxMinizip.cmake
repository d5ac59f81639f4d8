# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# The target zyxMinizip: minizip comes with a CMake package of one name or another, or with none, as on Debian.

add_library(zyxMinizip INTERFACE)
find_package(minizip CONFIG QUIET)
find_package(unofficial-minizip CONFIG QUIET)
if(TARGET minizip::minizip)
    target_link_libraries(zyxMinizip INTERFACE minizip::minizip)
elseif(TARGET unofficial::minizip::minizip)
    target_link_libraries(zyxMinizip INTERFACE unofficial::minizip::minizip)
else()
    find_path(ZYX_MINIZIP_INCLUDE_DIR minizip/zip.h REQUIRED)
    find_library(ZYX_MINIZIP_LIBRARY minizip REQUIRED)
    target_include_directories(zyxMinizip SYSTEM INTERFACE "${ZYX_MINIZIP_INCLUDE_DIR}")
    target_link_libraries(zyxMinizip INTERFACE "${ZYX_MINIZIP_LIBRARY}")
endif()
