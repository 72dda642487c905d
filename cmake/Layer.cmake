# A layer is a library that lists exactly what it may know. The same lists feed the include test,
# so that a header cannot be reached by a path that no link allows.

define_property(GLOBAL PROPERTY DROPSHADE_LAYERS)

# dropshade_layer(NAME SOURCES file... [LAYERS layer...] [LIBRARIES library...])
function(dropshade_layer name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LAYERS;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LAYERS} ${ARG_LIBRARIES})
    if("${ARG_LAYERS};${ARG_LIBRARIES}" MATCHES "Qt6::|dropshade_ui")
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
    dropshade_part_of_qt(part ${ARG_LAYERS} ${ARG_LIBRARIES})
    set_property(GLOBAL PROPERTY DROPSHADE_PART_OF_QT_${name} "${part}")
    dropshade_reuse_headers(${name} ${name})
    dropshade_record_layer(${name} "${ARG_SOURCES}" "${ARG_LAYERS}")
endfunction()

function(dropshade_record_layer name sources layers)
    set_property(GLOBAL APPEND PROPERTY DROPSHADE_LAYERS ${name})
    set_property(GLOBAL PROPERTY DROPSHADE_SOURCES_${name} "${sources}")
    set_property(GLOBAL PROPERTY DROPSHADE_LINKS_${name} "${layers}")
endfunction()
