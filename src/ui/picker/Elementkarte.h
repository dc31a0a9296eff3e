#pragma once

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

#include "core/clsElement.h"

class QLabel;

namespace zerna {

class Auskunftsliste;

/// The data of one element: symbol and name large, atomic number and configuration, the list of its properties and
/// where the value of the chosen line comes from.
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
    void showHerkunft();

    std::shared_ptr<clsElement> m_element;
    std::vector<std::string> m_herkunft; // a text per line of the list
    Auskunftsliste* m_lstInfo = nullptr;
    QLabel* m_lblHerkunft = nullptr;
};

} // namespace zerna
