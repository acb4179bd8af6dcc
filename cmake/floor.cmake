# One floor of the house: a static library of all sources of its folder. Its public include
# directory is the folder itself; it sees only the floors named here, which all lie below.
function(add_floor name)
    file(GLOB sources CONFIGURE_DEPENDS
         "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h"
         "${CMAKE_CURRENT_SOURCE_DIR}/*.ui" "${CMAKE_CURRENT_SOURCE_DIR}/*.qrc")
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC
        "${CMAKE_CURRENT_SOURCE_DIR}"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include") # ui_*.h of the floor's screens
    target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE warnings)
    precompile(${name})
endfunction()
