# Headers that most files read, compiled once for all targets that link the same part of Qt: to read them is
# most of a build. A target gets none that it doesn't link to, and what a file may include is the include
# test's to say, which reads the text.

# dropshade_shared_headers(NAME [LIBRARIES library...] HEADERS header...): for targets to reuse.
function(dropshade_shared_headers name)
    cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS" ${ARGN})
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/SharedHeaders.cpp")
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

set(core_headers
    <QByteArray> <QFile> <QHash> <QList> <QObject> <QSet> <QString> <QStringList> <QTimer> <QUuid> <QVariant>
    <algorithm> <array> <chrono> <cmath> <functional> <map> <memory> <optional> <span> <string> <utility>
    <variant> <vector>)
set(gui_headers ${core_headers}
    <QColor> <QFontMetricsF> <QGuiApplication> <QImage> <QKeyEvent> <QPainter> <QPainterPath> <QPixmap>)
set(widgets_headers ${gui_headers}
    <QAbstractButton> <QApplication> <QBoxLayout> <QLabel> <QMenu> <QWidget>)

dropshade_shared_headers(headers_of_Gui LIBRARIES Qt6::Gui HEADERS ${gui_headers})
dropshade_shared_headers(headers_of_Widgets LIBRARIES Qt6::Widgets HEADERS ${widgets_headers})

# Sets the variable to the largest part of Qt that these layers and libraries bring: Core, Gui or Widgets,
# or to nothing.
function(dropshade_part_of_qt variable)
    set(${variable} "" PARENT_SCOPE)
    set(parts "")
    foreach(link IN LISTS ARGN)
        get_property(part GLOBAL PROPERTY DROPSHADE_PART_OF_QT_${link})
        if(link MATCHES "^Qt6::(Gui|Widgets)$")
            set(part ${CMAKE_MATCH_1})
        elseif(link MATCHES "^Qt6::")
            set(part Core)
        endif()
        list(APPEND parts ${part})
    endforeach()
    foreach(part Core Gui Widgets)
        if(part IN_LIST parts)
            set(${variable} ${part} PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

# Has the target, which links to these layers and libraries, reuse the headers of its part of Qt. Those
# with Core alone are too few to pay for headers of their own.
function(dropshade_reuse_headers name)
    dropshade_part_of_qt(part ${ARGN})
    if(TARGET headers_of_${part})
        target_precompile_headers(${name} REUSE_FROM headers_of_${part})
    endif()
endfunction()
