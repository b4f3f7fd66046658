# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
# The programs look for the application's folder in ../share/stemwright beside their own folder, installed or not. In the
# build it holds a link to each entry of share/, so that a changed template is seen at once, and what is built for it.
set(STEMWRIGHT_APPLICATION_FOLDER ${CMAKE_BINARY_DIR}/share/stemwright)
if(IS_SYMLINK ${STEMWRIGHT_APPLICATION_FOLDER})
  file(REMOVE ${STEMWRIGHT_APPLICATION_FOLDER})
endif()
file(MAKE_DIRECTORY ${STEMWRIGHT_APPLICATION_FOLDER})
file(GLOB ENTRIES CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE ${CMAKE_SOURCE_DIR}/share ${CMAKE_SOURCE_DIR}/share/*)
foreach(ENTRY IN LISTS ENTRIES)
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/share/${ENTRY} ${STEMWRIGHT_APPLICATION_FOLDER}/${ENTRY} SYMBOLIC)
endforeach()
