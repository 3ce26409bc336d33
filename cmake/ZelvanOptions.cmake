# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only

# Warnings, sanitizers and the one include root live here and nowhere else.
add_library(zelvan_options INTERFACE)
target_include_directories(zelvan_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_definitions(zelvan_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH)
if(NOT MSVC)
    target_compile_options(zelvan_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
    if(ZELVAN_SANITIZE)
        target_compile_options(zelvan_options INTERFACE
            -fsanitize=${ZELVAN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(zelvan_options INTERFACE -fsanitize=${ZELVAN_SANITIZE})
    endif()
    if(ZELVAN_COVERAGE)
        target_compile_options(zelvan_options INTERFACE --coverage)
        target_link_options(zelvan_options INTERFACE --coverage)
    endif()
endif()

# What a distribution hardens its programs with; tests/structure/check_hardening.py looks for it in the
# program itself. A sanitizer stands in the way of some of it and checks more.
if(UNIX AND NOT APPLE AND NOT ZELVAN_SANITIZE)
    set(hardening -fstack-protector-strong -fstack-clash-protection)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i[3-6]86")
        list(APPEND hardening -fcf-protection)
    endif()
    target_compile_options(zelvan_options INTERFACE
        "$<$<CONFIG:Release>:${hardening};-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3>")
    # The code is position-independent already: Qt asks for it.
    target_link_options(zelvan_options INTERFACE
        "$<$<CONFIG:Release>:-pie;-Wl,-z,relro;-Wl,-z,now;-Wl,-z,noexecstack>")
endif()

# zelvan_layer(NAME [OWN_HEADER] SOURCES ... LINKS ...): one layer as a static library. Layers share the
# precompiled header of zelvan_core; one that uses more modules of Qt needs its own.
function(zelvan_layer name)
    cmake_parse_arguments(arg "OWN_HEADER" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    qt_add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC ${arg_LINKS} zelvan_options PRIVATE ${arg_PRIVATE_LINKS})
    if(arg_OWN_HEADER)
        target_precompile_headers(${name} PRIVATE
            <optional> <QAbstractListModel> <QDateTime> <QList> <QMap> <QObject> <QSqlDatabase>
            <QSqlError> <QSqlQuery> <QString> <QVariant>)
    else()
        target_precompile_headers(${name} REUSE_FROM zelvan_core)
    endif()
endfunction()

# Qt's own QML plugins are shared libraries: newer Qt would look for static ones, and warn of each.
function(zelvan_finds_plugins_at_run_time target)
    set_target_properties(${target} PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN TRUE)
endfunction()
