# What most sources of the window include is read once and kept. Sources still name all that they use: the linter reads
# them without it. CMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without it, too.
set(zerna_window_headers
    <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span> <string> <utility> <vector>
    <QAction> <QApplication> <QComboBox> <QDialog> <QHBoxLayout> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QPainter>
    <QTableWidget> <QTimer> <QWidget>
)

# ccache keeps what was built with it only if it is told that neither __TIME__ nor unused macros matter.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "(^|/)ccache$")
    list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros)
endif()
