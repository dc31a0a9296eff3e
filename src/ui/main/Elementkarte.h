#pragma once

#include <QWidget>

#include <memory>

#include "core/clsElement.h"

namespace zerna {

class Auskunftsliste;

/// The data of one element: symbol and name large, atomic number and configuration, and the list of its properties.
class Elementkarte : public QWidget {
    Q_OBJECT

public:
    explicit Elementkarte(QWidget* parent = nullptr);

    /// Null clears the card.
    void setElement(const std::shared_ptr<clsElement>& element);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::shared_ptr<clsElement> m_element;
    Auskunftsliste* m_lstInfo = nullptr;
};

} // namespace zerna
