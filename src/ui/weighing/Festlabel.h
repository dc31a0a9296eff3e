#pragma once

#include <QLabel>

#include <algorithm>
#include <utility>

namespace zerna {

/// A label that keeps its place, so that nothing around it moves when texts come and go: at least as wide as a sample
/// text and exactly as high as a number of lines, in whatever font.
class Festlabel : public QLabel {
public:
    Festlabel(QString sample, int lines, QWidget* parent)
        : QLabel(parent)
        , m_sample(std::move(sample))
        , m_lines(lines)
    {
        setWordWrap(lines > 1);
    }

    QSize sizeHint() const override
    {
        const int wanted = wordWrap() ? 0 : QLabel::sizeHint().width();
        return {std::max(wanted, fontMetrics().horizontalAdvance(m_sample)), m_lines * fontMetrics().lineSpacing()};
    }

    QSize minimumSizeHint() const override { return sizeHint(); }
    bool hasHeightForWidth() const override { return false; }

private:
    QString m_sample;
    int m_lines;
};

} // namespace zerna
