# Every header of the tree compiles alone: one generated source for each, built and thrown away.

file(
    GLOB_RECURSE headers
    RELATIVE ${PROJECT_SOURCE_DIR}
    CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/plugin/*.h ${PROJECT_SOURCE_DIR}/host_kit/*.h
)
set(sources)
foreach(header IN LISTS headers)
    string(MAKE_C_IDENTIFIER ${header} identifier)
    set(source ${PROJECT_BINARY_DIR}/headers/${identifier}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
    list(APPEND sources ${source})
endforeach()
add_library(rotavue_header_check OBJECT ${sources})
target_link_libraries(rotavue_header_check PRIVATE rotavue_options)
