# MinGW's own sin() and cos() are the processor's x87 instructions, which know pi to 66 bits: a cosine near 90 degrees is wrong
# in its fifth figure, and a polar stereographic grid by 61 m. Windows has better ones, as tan() comes from there, too.
# For all that is linked here, so that static libraries get them as well.
set(library ${CMAKE_BINARY_DIR}/libsystem_math.a)
set(functions ${CMAKE_CURRENT_LIST_DIR}/SystemMath)
# Not compiled as the tool's code is: with built-in functions, sincos() would call itself.
execute_process(COMMAND ${CMAKE_DLLTOOL} -d ${functions}.def -l ${library} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -O2 -fno-builtin -c ${functions}.cpp -o ${library}.o
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_AR} r ${library} ${library}.o OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
string(APPEND CMAKE_CXX_STANDARD_LIBRARIES " \"${library}\"")
