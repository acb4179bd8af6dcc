# The headers of Qt's windows and of the standard library, which most sources include anyway, are
# read once. A target takes them from the first one of its type: libraries and programs differ in
# position independence and cannot share them. What a type needs besides is named behind the target.
function(precompile target)
    get_target_property(type ${target} TYPE)
    get_property(first GLOBAL PROPERTY precompiled_${type})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
    else()
        target_precompile_headers(${target} PRIVATE
            <algorithm> <cmath> <cstdint> <functional> <memory> <optional> <string> <string_view>
            <utility> <vector> <QtCore> <QtWidgets> ${ARGN})
        set_property(GLOBAL PROPERTY precompiled_${type} ${target})
    endif()
endfunction()
