#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QCryptographicHash>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTableView>

#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "core/Zeichensatz.h"
#include "ui/controls/Wertanzeige.h"

/// What changed on the controls of a window and what came out of it, as compact lines.
namespace zerna {

inline std::vector<std::string> words(const std::string& text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// "a_0-2" means a_0, a_1 and a_2.
inline std::vector<std::string> expanded(const std::string& name)
{
    static const QRegularExpression range(QStringLiteral("^(.*_)(\\d+)-(\\d+)$"));
    const auto match = range.match(QString::fromStdString(name));
    std::vector<std::string> names;
    for (int i = match.captured(2).toInt(); match.hasMatch() && i <= match.captured(3).toInt(); ++i)
        names.push_back(match.captured(1).toStdString() + std::to_string(i));
    return match.hasMatch() ? names : std::vector{name};
}

/// The other way round: names with consecutive numbers become one.
inline std::vector<std::string> contracted(const std::vector<std::string>& names)
{
    std::vector<std::string> ranges;
    std::string first;
    std::string next; // what continues the last range
    for (const std::string& name : names) {
        if (name == next) {
            ranges.back() = first + '-' + name.substr(name.find_last_not_of("0123456789") + 1);
        } else {
            ranges.push_back(name);
            first = name;
        }
        const std::size_t digits = name.find_last_not_of("0123456789") + 1;
        next = digits < name.size() ? name.substr(0, digits) + std::to_string(std::stoi(name.substr(digits)) + 1) : "";
    }
    return ranges;
}

inline std::string oneLine(QString text) { return text.replace("\r\n", " / ").replace('\n', " / ").toStdString(); }

/// Texts end in CR LF or LF; today's date is not the recorded one.
inline std::string indented(QString text)
{
    static const QRegularExpression date(QStringLiteral("Einwaage vom [\\d.]+"));
    text.replace(date, QStringLiteral("Einwaage vom (date)"));
    text.replace("\r\n", "\n");
    std::string lines;
    for (const QString& line : text.split('\n'))
        lines += "    " + line.toStdString() + '\n';
    return lines;
}

inline std::string sizeText(const QImage& image)
{
    return std::to_string(image.width()) + " x " + std::to_string(image.height());
}

inline std::string checksum(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(16).toStdString();
}

/// A short text as it is, the number of lines and the checksum of a long one.
inline std::string textContent(const QString& text)
{
    constexpr int LongestText = 30;
    if (const auto lines = text.count('\n'); lines > LongestText)
        return ": " + std::to_string(lines) + " lines " + checksum(text.toUtf8()) + '\n';
    return '\n' + indented(text);
}

/// Of a bitmap the pixels; a text is UTF-8 if it begins with a byte order mark.
inline std::string fileContent(const std::string& name, const std::string& bytes)
{
    if (!name.ends_with(".bmp"))
        return textContent(
            QString::fromStdString(bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : fromWindows1252(bytes)));
    const QImage image = QImage::fromData(QByteArray::fromStdString(bytes)).convertToFormat(QImage::Format_RGB32);
    const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    return ": " + sizeText(image) + ' ' + checksum(pixels) + '\n';
}

/// Entries of one kind in lines that are not too long; each line begins with the kind.
class Protokoll {
public:
    void add(const std::string& kind, const std::string& entry)
    {
        constexpr std::size_t Widest = 140;
        const bool goesOn = kind == m_kind && m_width + entry.size() < Widest;
        const std::string piece = (goesOn ? " | " : "\n  " + kind + ": ") + entry;
        m_width = (goesOn ? m_width : 0) + piece.size();
        m_text += piece;
        m_kind = kind;
    }

    std::string text() const { return m_text.empty() ? "" : m_text.substr(1) + '\n'; }

private:
    std::string m_kind;
    std::size_t m_width = 0;
    std::string m_text;
};

/// What the user sees of a control.
struct Anblick {
    std::string text, entries;
    std::string hint; // the fault of a field, or what its formula comes to
    bool isVisible = false;
    bool isEnabled = true;
    bool isPale = false;
};

inline Anblick lookAt(QWidget& widget)
{
    Anblick seen{{}, {}, {}, widget.isVisible(), widget.isEnabled()};
    QStringList entries;
    if (const auto* const field = qobject_cast<QLineEdit*>(&widget)) {
        seen.text = field->text().toStdString();
        seen.hint = oneLine(field->toolTip());
        for (const QAction* const action : field->actions()) {
            if (action->isVisible())
                entries += action->toolTip();
        }
    } else if (const auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
        seen.text = button->accessibleName().toStdString() + (button->isChecked() ? " (checked)" : "");
    } else if (const QVariant text = widget.property("text"); text.isValid()) {
        const auto* const value = qobject_cast<const Wertanzeige*>(&widget);
        seen.text = oneLine(text.toString());
        seen.isPale = value != nullptr && value->istBlass();
    } else if (const auto* const table = qobject_cast<QTableView*>(&widget)) {
        for (int i = 0; i < table->model()->columnCount(); ++i)
            entries += oneLine(table->model()->headerData(i, Qt::Horizontal).toString()).c_str();
        seen.text = table->currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
    } else if (const auto* const lines = qobject_cast<QListWidget*>(&widget)) {
        for (int i = 0; i < lines->count(); ++i)
            entries += lines->item(i)->text();
    } else if (const auto* const list = qobject_cast<QComboBox*>(&widget)) {
        seen.text = list->currentText().toStdString();
        for (int i = 0; i < list->count(); ++i)
            entries += list->itemText(i);
    }
    constexpr int LongestList = 40;
    if (entries.size() > LongestList)
        entries = {entries.front(), QStringLiteral("…"), entries.back(), QString::number(entries.size())};
    seen.entries = entries.join(QStringLiteral(", ")).toStdString();
    return seen;
}

using Anblicke = std::map<std::string, Anblick>;

/// Logs what differs on the named controls.
inline void logChanges(
    Protokoll& log, const std::vector<std::string>& names, const Anblicke& before, const Anblicke& now)
{
    const auto forChanged = [&](auto Anblick::*part, const auto& act) {
        for (const std::string& name : names) {
            if (now.at(name).*part != before.at(name).*part)
                act(name, now.at(name).*part);
        }
    };
    forChanged(&Anblick::text, [&log](const std::string& name, const std::string& text) {
        const std::size_t underscore = name.rfind('_');
        if (name.find_last_not_of("0123456789") == underscore)
            log.add(name.substr(0, underscore), name.substr(underscore + 1) + " = " + text);
        else
            log.add(name, text);
    });
    forChanged(&Anblick::entries, [&log](auto& name, auto& entries) { log.add("entries of " + name, entries); });
    forChanged(&Anblick::hint, [&log](auto& name, auto& hint) { log.add("hint", name + " = " + hint); });
    std::map<std::string, std::vector<std::string>> states;
    forChanged(&Anblick::isVisible, [&](auto& name, bool is) { states[is ? "shown" : "hidden"].push_back(name); });
    forChanged(&Anblick::isEnabled, [&](auto& name, bool is) { states[is ? "enabled" : "disabled"].push_back(name); });
    forChanged(&Anblick::isPale, [&](auto& name, bool is) { states[is ? "pale" : "plain"].push_back(name); });
    for (const auto& [state, changed] : states) {
        for (const std::string& range : contracted(changed))
            log.add(state, range);
    }
}

} // namespace zerna
