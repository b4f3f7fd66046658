# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
# How a folder becomes a target. One folder is one library; DEPENDS lists the floors that it may stand on, and the build
# stops when a file includes a header of any other (CheckLayers.cmake).

add_library(stemwright_flags INTERFACE)
target_compile_options(stemwright_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual)
target_compile_definitions(stemwright_flags INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(STEMWRIGHT_WERROR)
  target_compile_options(stemwright_flags INTERFACE -Werror)
endif()
if(STEMWRIGHT_SANITIZE)
  target_compile_options(stemwright_flags INTERFACE -fsanitize=${STEMWRIGHT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(stemwright_flags INTERFACE -fsanitize=${STEMWRIGHT_SANITIZE})
endif()
if(STEMWRIGHT_FUZZ)
  target_compile_options(stemwright_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

set_property(GLOBAL PROPERTY stemwright_layers "")

# Notes what folder may include what, for the check of the arrows.
function(declare_layer FOLDER)
  list(JOIN ARGN "," ALLOWED)
  set_property(GLOBAL APPEND PROPERTY stemwright_layers "${FOLDER}=${ALLOWED}")
endfunction()

# Adds the check of the arrows to the build, after all folders are declared.
function(finish_layers)
  get_property(LAYERS GLOBAL PROPERTY stemwright_layers)
  list(JOIN LAYERS "\n" TEXT)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/layers.txt CONTENT "${TEXT}\n")
  add_custom_target(layers ALL
    COMMAND ${CMAKE_COMMAND} -DLAYERS=${CMAKE_BINARY_DIR}/layers.txt -DSOURCES=${CMAKE_SOURCE_DIR}/src
            -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayers.cmake
    COMMENT "Checking the layer arrows")
endfunction()

# stemwright_library(FOLDER store/engine TARGET engine SOURCES ... DEPENDS base ... LIBRARIES Qt6::Core ...)
# DEPENDS names folders below src/; the library's own folder is always allowed.
function(stemwright_library)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;DEPENDS;LIBRARIES" ${ARGN})
  string(REPLACE "/" "_" TARGET stemwright_${ARG_FOLDER})
  list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_SOURCE_DIR}/src/${ARG_FOLDER}/)
  add_library(${TARGET} STATIC ${ARG_SOURCES})
  target_include_directories(${TARGET} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${TARGET} PUBLIC ${ARG_LIBRARIES} PRIVATE stemwright_flags)
  foreach(FLOOR IN LISTS ARG_DEPENDS)
    string(REPLACE "/" "_" FLOOR_TARGET stemwright_${FLOOR})
    target_link_libraries(${TARGET} PUBLIC ${FLOOR_TARGET})
  endforeach()
  use_precompiled_headers(${TARGET})
  declare_layer(${ARG_FOLDER} ${ARG_FOLDER} ${ARG_DEPENDS})
endfunction()

# One precompiled set of the headers that nearly every file needs; targets without Qt do not take it.
function(use_precompiled_headers TARGET)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${TARGET} PRIVATE -fpch-preprocess)
  endif()
  target_precompile_headers(${TARGET} PRIVATE
    <QtCore/QByteArray> <QtCore/QDateTime> <QtCore/QString> <QtCore/QStringList>
    <algorithm> <cstdint> <functional> <memory> <optional> <string> <string_view> <vector>)
endfunction()

# Tests write texts as plain literals; sources have to say what they convert.
function(allow_plain_texts TARGET)
  target_compile_options(${TARGET} PRIVATE -UQT_NO_CAST_FROM_ASCII)
endfunction()

# stemwright_tests(FOLDER store SOURCES a.test.cpp ... DEPENDS store/file ...): one test program a folder of src/.
function(stemwright_tests)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;DEPENDS;LIBRARIES" ${ARGN})
  string(REPLACE "/" "_" NAME ${ARG_FOLDER})
  set(TARGET test_${NAME})
  list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_SOURCE_DIR}/tests/${ARG_FOLDER}/)
  add_executable(${TARGET} ${ARG_SOURCES})
  target_link_libraries(${TARGET} PRIVATE test_support ${ARG_LIBRARIES} stemwright_flags)
  foreach(FLOOR IN LISTS ARG_DEPENDS)
    string(REPLACE "/" "_" FLOOR_TARGET stemwright_${FLOOR})
    target_link_libraries(${TARGET} PRIVATE ${FLOOR_TARGET})
  endforeach()
  use_precompiled_headers(${TARGET})
  allow_plain_texts(${TARGET})
  gtest_discover_tests(${TARGET} TEST_PREFIX ${NAME}. DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300)
endfunction()
include(GoogleTest)
