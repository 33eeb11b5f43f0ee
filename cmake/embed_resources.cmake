# Writes a C++ source holding the given files as byte arrays, so the headless
# backend reads the very templates windres compiles without a path at run time.
# Usage: cmake -DOUTPUT=file.cpp -DINPUTS="a;b" -P embed_resources.cmake
set(body "// Generated from resources/. Do not edit.\n#include \"headless/embedded_resources.h\"\n\nnamespace kvs::headless {\n\nnamespace {\n")
string(REPLACE "|" ";" INPUTS "${INPUTS}")
set(entries "")
set(index 0)
foreach(input IN LISTS INPUTS)
  get_filename_component(name "${input}" NAME)
  file(READ "${input}" hex HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
  string(APPEND body "const unsigned char file${index}[] = {${hex} 0};\n")
  string(APPEND entries "        {\"${name}\", std::string(reinterpret_cast<const char*>(file${index}), sizeof(file${index}) - 1)},\n")
  math(EXPR index "${index} + 1")
endforeach()
string(APPEND body "\n}  // namespace\n\nconst ResourceFiles& embeddedResources() {\n    static const ResourceFiles files = {\n${entries}    };\n    return files;\n}\n\n}  // namespace kvs::headless\n")
file(WRITE "${OUTPUT}.tmp" "${body}")
file(COPY_FILE "${OUTPUT}.tmp" "${OUTPUT}" ONLY_IF_DIFFERENT)
