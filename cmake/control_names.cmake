# Writes OUTPUT, a C++ table of every "#define NAME number" of the control-id
# headers INPUTS ('|'-separated), so scenarios can name controls by their
# IDC_ names on both backends. A name defined twice with two values stops
# the build: the resource compiler would give one template the other's id.
string(REPLACE "|" ";" inputs "${INPUTS}")
set(rows "")
foreach(input IN LISTS inputs)
  file(STRINGS ${input} defines REGEX "^#define[ \t]+[A-Za-z_][A-Za-z0-9_]*[ \t]+-?[0-9]+")
  foreach(line IN LISTS defines)
    string(REGEX REPLACE "^#define[ \t]+([A-Za-z_][A-Za-z0-9_]*)[ \t]+(-?[0-9]+).*" "\\1;\\2" pair "${line}")
    list(GET pair 0 name)
    list(GET pair 1 value)
    if(DEFINED seen_${name})
      if(NOT seen_${name} STREQUAL value)
        message(FATAL_ERROR "${name} is ${seen_${name}} in ${from_${name}} and ${value} in ${input}")
      endif()
      continue()
    endif()
    set(seen_${name} ${value})
    set(from_${name} ${input})
    string(APPEND rows "    {\"${name}\", ${value}},\n")
  endforeach()
endforeach()
file(WRITE ${OUTPUT}.new "// Generated from resources/*_ids.h by cmake/control_names.cmake.
#include \"tools/scenario/control_names.h\"

namespace kvs::scenario {

const ControlName kControlNames[] = {
${rows}};
const std::size_t kControlNameCount = sizeof(kControlNames) / sizeof(kControlNames[0]);

}  // namespace kvs::scenario
")
file(COPY_FILE ${OUTPUT}.new ${OUTPUT} ONLY_IF_DIFFERENT)
