# The library compiled for what it mostly does (gcc). A second build, in counted/, holds the library with counters and a
# program that does with the samples what a proxy does; by its counts this build lays out and inlines the code, across
# units in the shared library.
#
# The profile is made anew when a source changes, of the very sources that it is for; nothing of it is installed.

set(QUILL_COUNTED ${PROJECT_BINARY_DIR}/counted)

# In the build in counted/: the program that counts.
function(quill_count)
  target_compile_options(quill_objects PRIVATE -fprofile-generate)
  target_link_options(quill_shared PRIVATE -fprofile-generate)
  add_subdirectory(${PROJECT_SOURCE_DIR}/tools/profile ${PROJECT_BINARY_DIR}/tools/profile)
endfunction()

# In the build that is for use: what waits for the counts, and is compiled by them.
function(quill_use_counts)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/source/*)
  file(GLOB samples CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/samples/*.sip)
  set(counts ${PROJECT_BINARY_DIR}/counts.stamp)
  set(place ${PROJECT_SOURCE_DIR}/cmake/place_counts.cmake)
  set(objects source/CMakeFiles/quill_objects.dir)
  add_custom_command(
    OUTPUT ${counts}
    COMMAND
      ${CMAKE_COMMAND} -S ${PROJECT_SOURCE_DIR} -B ${QUILL_COUNTED} -G ${CMAKE_GENERATOR} -DQUILL_PROFILE=count
      -DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE} -DCMAKE_C_COMPILER=${CMAKE_C_COMPILER}
      -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} "-DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}" -DQUILL_TOOLS=OFF
      -DQUILL_TESTS=OFF -DQUILL_BENCH=OFF
    COMMAND ${CMAKE_COMMAND} --build ${QUILL_COUNTED} --target count
    COMMAND find ${QUILL_COUNTED}/${objects} -name *.gcda -delete
    COMMAND ${QUILL_COUNTED}/count ${samples}
    COMMAND ${CMAKE_COMMAND} -DFROM=${QUILL_COUNTED}/${objects} -DTO=${PROJECT_BINARY_DIR}/${objects} -P ${place}
    COMMAND ${CMAKE_COMMAND} -E touch ${counts}
    DEPENDS ${sources} ${samples} ${place} ${PROJECT_SOURCE_DIR}/tools/profile/profile.cpp
            ${PROJECT_SOURCE_DIR}/bench/workloads.h ${CMAKE_CURRENT_FUNCTION_LIST_FILE}
    COMMENT "Counting what runs how often"
    VERBATIM)
  add_custom_target(quill_counts DEPENDS ${counts})
  add_dependencies(quill_objects quill_counts)
  get_target_property(units quill_objects SOURCES)
  set_source_files_properties(${units} TARGET_DIRECTORY quill_objects PROPERTIES OBJECT_DEPENDS ${counts})

  # What no sample reaches is compiled as if there were no profile; a unit without code has none. Hot is what makes 99.9 %
  # of the counts: by default, 99 %, parts of a proxy's hop are kept small.
  set(options -fprofile-use -fprofile-partial-training -fprofile-correction --param=hot-bb-count-ws-permille=999
              -Wno-missing-profile -flto=auto)
  target_compile_options(quill_objects PRIVATE ${options} -ffat-lto-objects)
  target_link_options(quill_shared PRIVATE -O3 ${options} -flto-partition=one)

  # The static library is for linkers of every kind: it keeps the machine code alone.
  add_custom_command(
    TARGET quill_static
    POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --wildcard --remove-section=.gnu.lto_* --remove-section=.gnu.debuglto_*
            $<TARGET_FILE:quill_static>
    VERBATIM)
endfunction()

if(QUILL_PROFILE STREQUAL "count")
  quill_count()
elseif(QUILL_PROFILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CROSSCOMPILING)
  quill_use_counts()
endif()
