# kvs_layer(TARGET FOLDER ALLOWS folder... [LINKS target...])
# A static library of FOLDER/*.cpp whose sources and headers may include
# only from the ALLOWS folders (by the repository-relative paths the code
# uses, "core/seam.h"); the check runs before the library compiles and fails
# the build on the first include that reaches elsewhere.
function(kvs_layer target folder)
  cmake_parse_arguments(LAYER "" "" "ALLOWS;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.h)
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  if(WIN32)
    target_compile_definitions(${target} PUBLIC KVS_BUILDING_DLL)
  endif()
  if(LAYER_LINKS)
    target_link_libraries(${target} PUBLIC ${LAYER_LINKS})
  endif()

  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/layering/${folder}.checked)
  string(REPLACE ";" "|" files "${sources};${headers}")
  string(REPLACE ";" "|" allowed "${LAYER_ALLOWS}")
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} "-DLAYER=${folder}" "-DFILES=${files}" "-DALLOWED=${allowed}"
            "-DROOT=${PROJECT_SOURCE_DIR}" "-DSTAMP=${stamp}" -P ${PROJECT_SOURCE_DIR}/cmake/check_layer.cmake
    DEPENDS ${sources} ${headers} ${PROJECT_SOURCE_DIR}/cmake/check_layer.cmake
    COMMENT "Checking the includes of ${folder}/"
    VERBATIM)
  add_custom_target(${target}_layering DEPENDS ${stamp})
  add_dependencies(${target} ${target}_layering)
endfunction()
