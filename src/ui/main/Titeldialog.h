#pragma once

#include <QDialog>

#include <string>

class QLineEdit;
class QPlainTextEdit;

namespace zerna {

/// Asks for the title and the remark of a document.
class Titeldialog : public QDialog {
    Q_OBJECT

public:
    Titeldialog(const std::string& titel, const std::string& bemerkung, QWidget* parent);

    std::string titel() const;
    std::string bemerkung() const;

private:
    QLineEdit* m_txtTitel = nullptr;
    QPlainTextEdit* m_txtBemerkung = nullptr;
};

} // namespace zerna
