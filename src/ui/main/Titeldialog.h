#pragma once

#include <QDialog>

#include <string>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace zerna {

class Befundzeile;

/// Asks for the title and the remark of a document. There is no OK while one is too long for a file, and a line says
/// so: nothing is cut.
class Titeldialog : public QDialog {
    Q_OBJECT

public:
    Titeldialog(const std::string& titel, const std::string& bemerkung, QWidget* parent);

    std::string titel() const;
    std::string bemerkung() const;

private:
    void pruefe();

    QLineEdit* m_txtTitel = nullptr;
    QPlainTextEdit* m_txtBemerkung = nullptr;
    Befundzeile* m_lblZuLang = nullptr;
    QWidget* m_zuLang = nullptr; // the field that the line is about
    QPushButton* m_cmdOK = nullptr;
};

} // namespace zerna
