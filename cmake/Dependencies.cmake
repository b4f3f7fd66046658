# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
# Everything that Stemwright builds on; all of it comes from the distribution.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
find_package(ICU REQUIRED COMPONENTS i18n uc)
find_package(SQLiteCpp REQUIRED)
find_package(SQLite3 REQUIRED)
find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
