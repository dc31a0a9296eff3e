#pragma once

#include <QTextCursor>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace zerna {

class StyledButton;

/// The search in the manual: marks all places that hold the typed text and leads from one to the next. The first one
/// shown is in a heading if there is one: it is where the thing is explained.
class Handbuchsuche : public QWidget {
    Q_OBJECT

public:
    explicit Handbuchsuche(QTextEdit& text, QWidget* parent = nullptr);

    /// The user is to type what is looked for.
    void beginne();
    void weiter(int schritt);

    /// Looks again: the text has been set anew.
    void erneuere();

signals:
    /// That place is to be seen.
    void gefunden(int position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void suche();
    void zeige();

    QTextEdit& m_text;
    QLineEdit* m_txtSuche = nullptr;
    QLabel* m_lblTreffer = nullptr;
    StyledButton* m_cmdVorher = nullptr;
    StyledButton* m_cmdWeiter = nullptr;
    std::vector<QTextCursor> m_treffer;
    int m_jetzt = -1; // of them, the one that is shown
};

} // namespace zerna
