#pragma once

#include <QWidget>

#include "bild/Bildvorgabe.h"
#include "ui/diagram/Leinwand.h"

namespace zerna {

/// Shows a picture of its own size as a sheet, as large as there is room for it.
class Bildvorschau : public QWidget {
    Q_OBJECT

public:
    explicit Bildvorschau(Bildmaler maler, QWidget* parent = nullptr);

    void zeige(const Bildvorgabe& vorgabe);

    /// Where the sheet lies.
    QRectF blatt() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Bildmaler m_maler;
    Bildvorgabe m_vorgabe;
};

} // namespace zerna
