# Assembles the stock templates of the PDE Cerfa report, byte for byte (no
# line end is touched, Windows-1252 bytes pass as they are):
#   PDE<n>.tvm       entete.rtf + pages/PDE<n>.rtf + "}"
#   PDECerfa.tvm     entete.rtf + the bodies of pages 1 to 13 joined by "\sect " + "}"
#   PDECerfasoc.tvm  the same over pages 1 to 15 (the two company sheets)
#   tableaux.txt     tableaux/PDE<n>.txt one after the other, in page order
# A page not written yet is left out of the whole report; the single-page
# template of a page whose body has gone is removed.
#
#   cmake -DSOURCE=<folder of entete.rtf, pages/, tableaux/> -DDESTINATION=<Norvane/PDE> -P AssemblerPDE.cmake
#
# file(READ) drops carriage returns, so files are never read into strings:
# `cmake -E cat` joins them, and the two joints are small files of their own.
cmake_minimum_required(VERSION 3.25)

if(NOT SOURCE OR NOT DESTINATION)
  message(FATAL_ERROR "AssemblerPDE: SOURCE and DESTINATION are required")
endif()
set(kDernierePage 15)
set(kDernierePageIndividuelle 13)

file(MAKE_DIRECTORY "${DESTINATION}")
set(joints "${DESTINATION}/.assemblage")
file(MAKE_DIRECTORY "${joints}")
file(WRITE "${joints}/saut" "\\sect ")
file(WRITE "${joints}/fin" "}")

# Writes the files of `ARGN`, one after the other, to `cible`.
function(joindre cible)
  if(NOT ARGN)
    file(WRITE "${cible}" "")
    return()
  endif()
  execute_process(COMMAND "${CMAKE_COMMAND}" -E cat ${ARGN} OUTPUT_FILE "${cible}" RESULT_VARIABLE statut)
  if(NOT statut EQUAL 0)
    message(FATAL_ERROR "AssemblerPDE: ${cible} not written (${statut})")
  endif()
endfunction()

set(entete "${SOURCE}/entete.rtf")
set(rapport "")
set(rapportSociete "")
set(modeles "")
foreach(n RANGE 1 ${kDernierePage})
  if(EXISTS "${SOURCE}/tableaux/PDE${n}.txt")
    list(APPEND modeles "${SOURCE}/tableaux/PDE${n}.txt")
  endif()
  set(page "${SOURCE}/pages/PDE${n}.rtf")
  if(NOT EXISTS "${page}")
    file(REMOVE "${DESTINATION}/PDE${n}.tvm")
    continue()
  endif()
  joindre("${DESTINATION}/PDE${n}.tvm" "${entete}" "${page}" "${joints}/fin")
  # Pages are joined by a section break; the first one follows the prolog.
  if(rapportSociete)
    list(APPEND rapportSociete "${joints}/saut")
  endif()
  list(APPEND rapportSociete "${page}")
  if(n LESS_EQUAL kDernierePageIndividuelle)
    set(rapport ${rapportSociete})
  endif()
endforeach()

joindre("${DESTINATION}/PDECerfa.tvm" "${entete}" ${rapport} "${joints}/fin")
joindre("${DESTINATION}/PDECerfasoc.tvm" "${entete}" ${rapportSociete} "${joints}/fin")
joindre("${DESTINATION}/tableaux.txt" ${modeles})
file(REMOVE_RECURSE "${joints}")
