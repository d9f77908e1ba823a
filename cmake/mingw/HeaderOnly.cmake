# header_only(PACKAGE TARGET FOLDER): a library that is headers alone, taken from where the machine that builds has it. Its
# folder alone is made visible: the others beside it are the headers of that machine's own system.
function(header_only package target folder)
    find_path(${package}_INCLUDE_DIR ${folder} PATHS /usr/include /usr/local/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    include(FindPackageHandleStandardArgs)
    find_package_handle_standard_args(${package} REQUIRED_VARS ${package}_INCLUDE_DIR)
    if(${package}_FOUND AND NOT TARGET ${target})
        set(headers ${CMAKE_BINARY_DIR}/headers/${package})
        file(MAKE_DIRECTORY ${headers})
        file(CREATE_LINK ${${package}_INCLUDE_DIR}/${folder} ${headers}/${folder} SYMBOLIC)
        add_library(${target} INTERFACE IMPORTED)
        target_include_directories(${target} INTERFACE ${headers})
    endif()
endfunction()
