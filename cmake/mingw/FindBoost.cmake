include(${CMAKE_CURRENT_LIST_DIR}/HeaderOnly.cmake)
header_only(Boost Boost::headers boost)
