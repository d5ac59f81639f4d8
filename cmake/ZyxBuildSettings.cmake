# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
#
# What every target of this build has in common: zyx_target_defaults(target).

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The ending of the sources that are this system's: X_win.cpp, X_unix.cpp.
if(WIN32)
    set(ZYX_SYSTEM win)
else()
    set(ZYX_SYSTEM unix)
endif()

# Programs and libraries side by side, so that Windows finds the libraries.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(ZYX_CCACHE ccache)
if(ZYX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ZYX_CCACHE}")
endif()

# What most sources ask for. The library, the examples and the tests each precompile these once. Sources still name what
# they use: clang-tidy reads them without this help.
set(ZYX_COMMON_HEADERS
    <algorithm> <array> <atomic> <functional> <memory> <optional> <stdexcept> <string> <thread> <utility> <vector>
    <QtCore/QCoreApplication> <QtCore/QDateTime> <QtCore/QDir> <QtCore/QElapsedTimer> <QtCore/QFileInfo>
    <QtCore/QPointer> <QtCore/QProcess> <QtCore/QRandomGenerator> <QtCore/QRegularExpression> <QtCore/QScopeGuard>
    <QtCore/QSettings> <QtCore/QStandardPaths> <QtCore/QStringBuilder> <QtCore/QTemporaryDir> <QtCore/QTextStream>
    <QtCore/QThread> <QtCore/QTimer> <QtCore/QVariant> <QtGui/QImage> <QtGui/QPainter>
    <QtNetwork/QNetworkReply> <QtNetwork/QTcpServer> <QtNetwork/QTcpSocket>
    <QtWidgets/QApplication> <QtWidgets/QMainWindow> <QtWidgets/QMessageBox> <QtWidgets/QPushButton>
    <QtXml/QDomDocument>
)
list(TRANSFORM ZYX_COMMON_HEADERS REPLACE "(.+)" "$<$<COMPILE_LANGUAGE:CXX>:\\1>")

function(zyx_target_defaults target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_DISABLE_DEPRECATED_BEFORE=0x060400
        QT_USE_QSTRINGBUILDER
    )
    if(MSVC)
        # 4251, 4275: hosts and library are built with the same Qt and standard library
        target_compile_definitions(${target} PRIVATE NOMINMAX)
        target_compile_options(${target} PRIVATE /utf-8 /W4 /permissive- /wd4251 /wd4275 $<$<BOOL:${ZYX_WARNINGS_AS_ERRORS}>:/WX>)
    else()
        file(RELATIVE_PATH sourceFolder "${PROJECT_BINARY_DIR}" "${PROJECT_SOURCE_DIR}/") # as a compiler cache has it
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-align
            $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast;-Wnon-virtual-dtor;-Woverloaded-virtual>
            $<$<BOOL:${ZYX_WARNINGS_AS_ERRORS}>:-Werror>
            # file names in reports are the ones of the source tree, wherever it lies
            "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
            "-fmacro-prefix-map=${sourceFolder}="
            # what a compiler cache needs to know precompiled headers again
            $<IF:$<CXX_COMPILER_ID:Clang>,SHELL:-Xclang -fno-pch-timestamp,-fpch-preprocess>
        )
    endif()
    if(ZYX_SANITIZE)
        target_compile_options(${target} PRIVATE "-fsanitize=${ZYX_SANITIZE}" -fno-omit-frame-pointer
            -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE "-fsanitize=${ZYX_SANITIZE}")
    endif()
    if(ZYX_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PRIVATE --coverage)
    endif()
endfunction()
