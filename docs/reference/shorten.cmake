# On the pages of topics a function is "getUnit" and an addition "Ext::unitOf", without the namespace that all share.
file(GLOB pages "${PAGES}/group__*.html")
foreach(page IN LISTS pages)
  file(READ "${page}" text)
  string(REPLACE ">KVCAM::UIAPI::" ">" text "${text}")
  file(WRITE "${page}" "${text}")
endforeach()
