#pragma once

#include <QLabel>

namespace zerna {

/// A caption whose text stays: measured once. The toolkit's label measures three times for each of its sizes.
class Beschriftung : public QLabel {
public:
    using QLabel::QLabel;

    QSize sizeHint() const override
    {
        if (!m_size.isValid())
            m_size = fontMetrics().size(Qt::TextShowMnemonic, text());
        return m_size;
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent* event) override
    {
        m_size = {}; // another font
        QLabel::changeEvent(event);
    }

private:
    mutable QSize m_size;
};

} // namespace zerna
