# Linked by every target of the house.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wconversion -Wdouble-promotion -Wformat=2)
option(TORVENA_WERROR "Warnings are errors" OFF)
if(TORVENA_WERROR)
    target_compile_options(warnings INTERFACE -Werror)
endif()
