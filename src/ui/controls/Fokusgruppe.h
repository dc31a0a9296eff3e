#pragma once

#include <QObject>

#include <vector>

class QWidget;

namespace zerna {

/// Makes widgets in columns one stop of the tab key, where the focus was last. The arrow keys move among them, Home and
/// End go to the first and the last.
class Fokusgruppe : public QObject {
    Q_OBJECT

public:
    using Spalten = std::vector<std::vector<QWidget*>>;

    /// The stop is `halt` at first.
    Fokusgruppe(QObject* parent, Spalten spalten, QWidget* halt);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHalt(QObject* halt);
    QWidget* reachedBy(int key, const QObject* from) const;

    Spalten m_spalten;
};

} // namespace zerna
