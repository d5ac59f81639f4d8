# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

set(packageFolder "${CMAKE_INSTALL_LIBDIR}/cmake/UtilsDllzglv6")

install(TARGETS UtilsDllzglv6
    EXPORT UtilsDllzglv6Targets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/UtilsDllzglv6"
)
install(EXPORT UtilsDllzglv6Targets NAMESPACE Zyx:: DESTINATION "${packageFolder}")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/UtilsDllzglv6Config.cmake.in"
    "${PROJECT_BINARY_DIR}/UtilsDllzglv6Config.cmake" INSTALL_DESTINATION "${packageFolder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/UtilsDllzglv6ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/UtilsDllzglv6Config.cmake"
    "${PROJECT_BINARY_DIR}/UtilsDllzglv6ConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/ZyxLog4cplus.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/ZyxVersionStamp.cmake"
    DESTINATION "${packageFolder}"
)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/cmake/versionStamp" DESTINATION "${packageFolder}")
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/licenses/UtilsDllzglv6")
install(DIRECTORY LICENSES DESTINATION "${CMAKE_INSTALL_DATADIR}/licenses/UtilsDllzglv6")
