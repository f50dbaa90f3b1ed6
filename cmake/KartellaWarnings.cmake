# Every target of ours compiles with warnings as errors.
function(kartella_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_BYTEARRAY
                                                 QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
endfunction()
