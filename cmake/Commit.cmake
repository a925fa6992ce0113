# Which commit is built: asked of git when the build is configured, and again after each commit. An
# archive that git made ("git archive") has it in cmake/commit.txt.

# tarn_find_commit(<variable>): its first twelve digits; empty where it cannot be told.
function(tarn_find_commit variable)
  set(${variable} "" PARENT_SCOPE)
  file(READ ${PROJECT_SOURCE_DIR}/cmake/commit.txt commit)
  if(NOT commit MATCHES "^[0-9a-f]+")
    # A .git of the folder's own: one above it would be another repository's.
    find_program(TARN_GIT git)
    if(NOT TARN_GIT OR NOT EXISTS ${PROJECT_SOURCE_DIR}/.git)
      return()
    endif()
    execute_process(
      COMMAND ${TARN_GIT} rev-parse HEAD
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE commit
      ERROR_QUIET)
    execute_process(
      COMMAND ${TARN_GIT} rev-parse --path-format=absolute --git-path HEAD --git-path logs/HEAD
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE files
      ERROR_QUIET)
    string(REGEX MATCHALL "[^\n]+" files "${files}")
    foreach(file IN LISTS files)
      if(EXISTS ${file})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
      endif()
    endforeach()
  endif()
  if(commit MATCHES "^[0-9a-f]+")
    string(SUBSTRING ${CMAKE_MATCH_0} 0 12 commit)
    set(${variable} ${commit} PARENT_SCOPE)
  endif()
endfunction()
