#pragma once

#include <QDialog>

namespace zerna {

class clsLoader;

/// The about box: version, build time and code lines, and links to author and web page where the build gives them.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(const clsLoader& loader, QWidget* parent = nullptr);
};

} // namespace zerna
