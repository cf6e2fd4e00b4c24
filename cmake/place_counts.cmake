# Puts the counts of the objects in FROM beside the same objects in TO, where gcc looks for them. One that says the same as
# before stays as it is.
file(GLOB_RECURSE counts RELATIVE ${FROM} ${FROM}/*.gcda)
foreach(count ${counts})
  configure_file(${FROM}/${count} ${TO}/${count} COPYONLY)
endforeach()
