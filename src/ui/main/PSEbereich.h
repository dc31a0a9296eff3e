#pragma once

#include <QWidget>

class QListWidget;

namespace zerna {

/// The second panel: the drawn periodic table and the data of the selected element.
class PSEbereich : public QWidget {
    Q_OBJECT

public:
    explicit PSEbereich(QWidget* parent = nullptr);

    /// Places table and information side by side.
    void layOut();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* m_picPSE = nullptr;
    QWidget* m_picInfo = nullptr;
    QListWidget* m_lstInfo = nullptr;
};

} // namespace zerna
