# Warnings every new target is held to, on top of -Wall -Wextra.
set(NORVANE_AVERTISSEMENTS_STRICTS -Wshadow -Wconversion -Wsign-conversion -Wpedantic)

# norvane_avertissements_stricts(<target>): the stricter warnings on one target.
function(norvane_avertissements_stricts cible)
  get_target_property(sorte ${cible} TYPE)
  if(NOT sorte STREQUAL "INTERFACE_LIBRARY")
    target_compile_options(${cible} PRIVATE ${NORVANE_AVERTISSEMENTS_STRICTS})
  endif()
endfunction()

# norvane_module(<name> <folder> [DEPENDS libs...])
# One static library per subsystem folder; its sources are every .cpp of the
# folder (sub-folders ui/, render/ and libreoffice/ are left to their own
# targets, since they bring Qt or UNO).
function(norvane_module nom dossier)
  cmake_parse_arguments(M "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${dossier}/*.cpp")
  if(sources)
    add_library(${nom} STATIC ${sources})
    target_include_directories(${nom} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${nom} PUBLIC ${M_DEPENDS})
    norvane_avertissements_stricts(${nom})
  else()
    add_library(${nom} INTERFACE)
    target_include_directories(${nom} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${nom} INTERFACE ${M_DEPENDS})
  endif()
endfunction()

# norvane_tests(<name> <folder> [DEPENDS libs...])
# One GoogleTest program per subsystem, built from tests/<folder>/*.cpp.
function(norvane_tests nom dossier)
  cmake_parse_arguments(M "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${dossier}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(${nom} ${sources})
  target_include_directories(${nom} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/tests" "${PROJECT_SOURCE_DIR}/tools")
  target_link_libraries(${nom} PRIVATE ${M_DEPENDS} norvane_support GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${nom} PRIVATE NORVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" NORVANE_ARBRE="${NORVANE_ARBRE}")
  gtest_discover_tests(${nom} DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "NORVANE_EXE=${NORVANE_ARBRE}/Norvane/norvane;NORVANE_SOURCE=${PROJECT_SOURCE_DIR}")
endfunction()
