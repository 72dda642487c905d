# Writes what each layer holds and may know, a line each, for the include test.

get_property(layers GLOBAL PROPERTY DROPSHADE_LAYERS)
set(lines "")
foreach(layer IN LISTS layers)
    get_property(sources GLOBAL PROPERTY DROPSHADE_SOURCES_${layer})
    get_property(links GLOBAL PROPERTY DROPSHADE_LINKS_${layer})
    list(JOIN sources " " sources)
    list(JOIN links " " links)
    string(APPEND lines "${layer}|${links}|${sources}\n")
endforeach()
file(WRITE "${PROJECT_BINARY_DIR}/layers.txt" "${lines}")
