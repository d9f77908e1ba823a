include(${CMAKE_CURRENT_LIST_DIR}/HeaderOnly.cmake)
header_only(nlohmann_json nlohmann_json::nlohmann_json nlohmann)
