# SPDX-FileCopyrightText: The Stemwright authors
# SPDX-License-Identifier: MIT
# Installs BUILD into a fresh folder and publishes the site of the GEDCOM file TREE with the installed program, without anything
# of the build or the sources in reach of it but the program's own files.
cmake_minimum_required(VERSION 3.25)
set(FOLDER ${BUILD}/packaging/installed)
file(REMOVE_RECURSE ${FOLDER})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE STATUS OUTPUT_VARIABLE OUTPUT ERROR_VARIABLE OUTPUT)
  if(NOT STATUS EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${STATUS}:\n${OUTPUT}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER})
set(ENV{XDG_CONFIG_HOME} ${FOLDER}/settings)
set(PROGRAM ${FOLDER}/bin/stemwright-cli)
run(${PROGRAM} new ${FOLDER}/family.kvf)
run(${PROGRAM} --yes import ${FOLDER}/family.kvf ${TREE})
run(${PROGRAM} --yes publish ${FOLDER}/family.kvf --output ${FOLDER}/site)
# A copy, since whoever installed the program need not be who runs it.
file(COPY ${FOLDER}/share/stemwright/felinity.kvf DESTINATION ${FOLDER})
run(${PROGRAM} --yes publish ${FOLDER}/felinity.kvf --output ${FOLDER}/cats)
foreach(FILE IN ITEMS site/index.html cats/ListOfPics.html site/graphics/site.css share/man/man1/stemwright-cli.1
        share/stemwright/manual/frmalbum.html lib/stemwright/libstemwright_siteview.so)
  if(NOT EXISTS ${FOLDER}/${FILE})
    message(FATAL_ERROR "${FILE} is not there")
  endif()
endforeach()
