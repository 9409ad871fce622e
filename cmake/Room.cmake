# A room of the house: one folder, one static library named after it, made of every class in the folder.
#   add_room(<name> [OBJECTS] [PUBLIC <libraries of its headers>] [PRIVATE <libraries of its sources>])
# OBJECTS: all of it goes into the program that names it, wherever on the link line; for a room that stands behind an
# interface, which the rooms that call it do not name.

include(cmake/PrecompiledHeaders.cmake)

# On in the presets: a packager's newer compiler warns of what this one does not.
option(VORN_WERROR "Treat warnings in the tool's own code as errors" OFF)

add_library(vorn_options INTERFACE)
target_include_directories(vorn_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(MSVC)
  target_compile_options(vorn_options INTERFACE /W4 /permissive- /utf-8 $<$<BOOL:${VORN_WERROR}>:/WX>)
else()
  target_compile_options(vorn_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                                                $<$<BOOL:${VORN_WERROR}>:-Werror>)
  # What is tested is what is packaged, so every release build is hardened as a distribution's is.
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    target_compile_options(vorn_options INTERFACE
      $<$<CONFIG:Release>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong>)
    target_link_options(vorn_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
  endif()
endif()

function(add_room name)
  cmake_parse_arguments(ROOM "OBJECTS" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.h *.cpp)
  set(type STATIC)
  if(ROOM_OBJECTS)
    set(type OBJECT)
  endif()
  add_library(${name} ${type} ${sources})
  target_link_libraries(${name} PUBLIC vorn_options ${ROOM_PUBLIC} PRIVATE ${ROOM_PRIVATE})
  use_precompiled_headers(${name} room <QtWidgets>)
endfunction()

# The test program of a room: tests/<folder>/*.cpp, run offscreen by CTest under the name <name>; with the tool's application
# object where it links test_gui.
#   add_room_test(<name> <libraries>...)
function(add_room_test name)
  file(GLOB sources CONFIGURE_DEPENDS *.h *.cpp)
  add_executable(${name} ${sources})
  set(main test_main)
  if(test_gui IN_LIST ARGN)
    set(main test_main_gui)
  endif()
  target_link_libraries(${name} PRIVATE ${main} ${ARGN})
  use_precompiled_headers(${name} room_test <QtWidgets> <QtTest>)
  target_compile_definitions(${name} PRIVATE TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  # Beside bin/, so that $(APP_DIR)/../etc and ../lib are the build tree's own.
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LANGUAGE=en")
endfunction()

# <build>/rooms.txt says what every target of src/ links, for tools/draw_rooms.py. A line is
#   folder|target|type|what it links|what its users link with it|what must be built with it
function(list_rooms folder)
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR}/src ${folder})
  foreach(target ${targets})
    set(line "${name}|${target}")
    foreach(property TYPE LINK_LIBRARIES INTERFACE_LINK_LIBRARIES MANUALLY_ADDED_DEPENDENCIES)
      get_target_property(value ${target} ${property})
      if(NOT value)
        set(value "")
      endif()
      string(APPEND line "|${value}")
    endforeach()
    file(APPEND ${CMAKE_BINARY_DIR}/rooms.txt "${line}\n")
  endforeach()
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(folder ${folders})
    list_rooms(${folder})
  endforeach()
endfunction()
file(WRITE ${CMAKE_BINARY_DIR}/rooms.txt "")
cmake_language(DEFER CALL list_rooms ${PROJECT_SOURCE_DIR}/src) # when every target is known
