#pragma once

#include <QDialog>

#include "core/Settings.h"

namespace zerna {

/// The settings that have no place of their own in the window. They are kept when the box is closed by OK.
class frmEinstellungen : public QDialog {
    Q_OBJECT

public:
    explicit frmEinstellungen(Settings& settings, QWidget* parent = nullptr);
};

} // namespace zerna
