# The <release> elements of the AppStream metainfo, in the order of
# ChangesLog.txt (newest first). A line "VERSION Build N (YYYY-MM-DD)" opens a
# release; each "- " item, with its more deeply indented continuation lines,
# becomes one list entry.

# Appends the pending item, if any, to `xml` as a list entry.
macro(_tessarondel_flush_item)
  if(item)
    string(REPLACE "&" "&amp;" item "${item}")
    string(REPLACE "<" "&lt;" item "${item}")
    string(REPLACE ">" "&gt;" item "${item}")
    string(APPEND xml "          <li>${item}</li>\n")
    set(item "")
  endif()
endmacro()

macro(_tessarondel_close_release)
  _tessarondel_flush_item()
  if(release_open)
    string(APPEND xml "        </ul>\n      </description>\n    </release>\n")
    set(release_open FALSE)
  endif()
endmacro()

function(tessarondel_releases_from_changes changes_file out_var)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changes_file})
  file(READ ${changes_file} text)
  string(REPLACE ";" "\\;" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  set(xml "")
  set(item "")
  set(release_open FALSE)
  foreach(line IN LISTS lines)
    if(line MATCHES "^([0-9.]+) Build [0-9]+ \\(([0-9]+-[0-9]+-[0-9]+)\\)$")
      _tessarondel_close_release()
      string(APPEND xml "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\">\n"
                        "      <description>\n        <ul>\n")
      set(release_open TRUE)
    elseif(release_open AND line MATCHES "^ *- (.*)$")
      _tessarondel_flush_item()
      set(item "${CMAKE_MATCH_1}")
    elseif(item AND line MATCHES "^ +(.*)$")
      string(APPEND item " ${CMAKE_MATCH_1}")
    endif()
  endforeach()
  _tessarondel_close_release()
  set(${out_var} "${xml}" PARENT_SCOPE)
endfunction()
