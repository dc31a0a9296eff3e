#pragma once

#include <QObject>
#include <QStringList>

#include "programm/Dokumentverwaltung.h"
#include "ui/controls/Schritt.h"
#include "ui/platform/Dialoge.h"

class QMenu;
class QMimeData;

namespace zerna {

class Menue;

/// The document as a file: the file commands of the main window, the name in its title bar and the files that are
/// dropped on it.
class Dateibefehle : public QObject {
    Q_OBJECT

public:
    /// The window has a title already, which stays as long as no file is open.
    Dateibefehle(Programm& programm, Dialoge dialoge, QWidget& window);

    void addBefehle(Menue& menue);

    /// Opens what the program was called with: nothing or one file; anything else is refused with a message.
    void oeffneArgumente(const QStringList& argumente);

    OffeneDatei offen() const { return m_dateien.offen(); }

    void beginne() { m_dateien.beginne(); }

    /// Goes on with a document that was restored, which belongs to that file if there is one.
    void setzeFort(const OffeneDatei& datei);

    /// Asks what is to become of unsaved changes; true if the window may close.
    bool darfSchliessen() { return m_dateien.darfSchliessen(); }

    /// Shows in the title bar which file is open and whether it is changed.
    void zeigeTitel();

signals:
    /// The document has become another one.
    void ersetzt();

    /// The document is in its file: undo is to lead back here.
    void gespeichert();

    void geschehen(const Schritt& schritt);

    /// Files that are measured curves have been dropped.
    void messkurvenGezogen(const QStringList& dateien);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool istOffen(const std::filesystem::path& datei) const;
    void addSpeichern(Menue& menue);
    void zeigeErsetztes(bool istErsetzt);
    void zeigeGespeichertes(bool istGespeichert);
    void oeffne(const QString& file);
    void fillZuletzt(QMenu& menu);
    void editTitel();
    void droppe(const QMimeData& data);

    Programm& m_programm;
    Dokumentverwaltung m_dateien;
    QWidget& m_window;
    QString m_ohneDatei; // the window's title
};

} // namespace zerna
