# nlohmann_json::nlohmann_json, a library of headers alone. A cross compiler takes them from the
# building machine, by a link to their folder: the folder around it has the headers of another system.
if(CMAKE_CROSSCOMPILING)
  find_path(NLOHMANN_HEADERS nlohmann/json.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/json)
  file(CREATE_LINK ${NLOHMANN_HEADERS}/nlohmann ${CMAKE_BINARY_DIR}/json/nlohmann SYMBOLIC)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
  target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/json)
else()
  find_package(nlohmann_json REQUIRED)
endif()
