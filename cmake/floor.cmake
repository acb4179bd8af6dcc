# One floor of the house: a static library of all sources of its folder. It sees only the floors
# named here and what those see. Its include directory is its door, in which a link of the floor's
# name leads to its folder: an include names the floor, "store/database.h".
function(add_floor name)
    file(GLOB sources CONFIGURE_DEPENDS
         "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h"
         "${CMAKE_CURRENT_SOURCE_DIR}/*.ui" "${CMAKE_CURRENT_SOURCE_DIR}/*.qrc")
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${name} STATIC ${sources})
    set(door "${CMAKE_BINARY_DIR}/doors/${name}")
    file(MAKE_DIRECTORY "${door}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${door}/${name}" SYMBOLIC)
    target_include_directories(${name} PUBLIC
        "${door}"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include") # ui_*.h of the floor's screens
    target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE warnings)
    if(NOT name MATCHES "^(platform|store)$") # they know no widgets
        precompile(${name})
    endif()
endfunction()
