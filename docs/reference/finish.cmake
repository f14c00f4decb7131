# What Doxygen has no option for.

# On the pages of topics a function is "getUnit" and an addition "Ext::unitOf", without the namespace that all share.
file(GLOB pages "${PAGES}/group__*.html" "${PAGES}/group__*.js")
foreach(page IN LISTS pages)
  file(READ "${page}" text)
  string(REGEX REPLACE "([>\"])KVCAM::UIAPI::" "\\1" text "${text}")
  file(WRITE "${page}" "${text}")
endforeach()

# The search that finds parts of names.
file(READ "${CMAKE_CURRENT_LIST_DIR}/search.js" text)
file(APPEND "${PAGES}/search/search.js" "${text}")

# Pages of folders, to which no page leads.
file(GLOB pages "${PAGES}/dir_*")
file(REMOVE ${pages})
