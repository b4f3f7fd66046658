# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
# Everything that Stemwright builds on; all of it comes from the distribution.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets WebEngineWidgets)
find_package(PkgConfig REQUIRED)
pkg_check_modules(MDB REQUIRED IMPORTED_TARGET libmdb)
find_package(ICU REQUIRED COMPONENTS i18n uc)
find_package(SQLiteCpp REQUIRED)
find_package(SQLite3 REQUIRED)
find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)

# The cache takes files with precompiled headers only when it is told that their macros and times do not matter, and it
# finds what another checkout compiled only when paths below the source folder are taken as relative.
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()
