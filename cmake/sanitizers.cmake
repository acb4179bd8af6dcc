option(TORVENA_SANITIZE "AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(TORVENA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
