#pragma once

#include <QListWidget>

#include <span>
#include <string>

namespace zerna {

/// Lines of the form "caption: value" with the values in a column of their own. Ctrl+C copies the value; the
/// menu does, too, and offers the number alone where there is one with a unit.
class Auskunftsliste : public QListWidget {
    Q_OBJECT

public:
    explicit Auskunftsliste(QWidget* parent = nullptr);

    /// Each line's tool tip is the line itself and its detail, if there are details.
    void setLines(std::span<const std::string> lines, std::span<const std::string> details = {});

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copyValue() const;
};

} // namespace zerna
