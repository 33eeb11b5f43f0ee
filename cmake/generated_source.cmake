# kvs_generated_source(OUTPUT SCRIPT COMMENT INPUT...): OUTPUT is written by
# the CMake script SCRIPT from the INPUT files (handed over '|'-separated as
# INPUTS), again whenever one of them or the script changes.
function(kvs_generated_source output script comment)
  string(REPLACE ";" "|" inputs "${ARGN}")
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} "-DINPUTS=${inputs}" -P ${script}
    DEPENDS ${ARGN} ${script}
    COMMENT "${comment}"
    VERBATIM)
endfunction()
