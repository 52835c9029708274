#include "dialogs/FrmBild.h"

#include "compose/canvas/ImageCanvas.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "render/Bildwerk.h"
#include "render/Lead.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <functional>

namespace zp {

namespace {

const char* const Reglernamen[BildreglerAnzahl] = {
    "Helligkeit", "Kontrast", "Farbverschiebung", "Farbintensität", "Schärfe", "Zusätzliche Pixel", "Mosaik"};

template <typename W> W* Benannt(W* w, const QString& name) {
    w->setObjectName(name);
    return w;
}

// Return and Enter in `box` run `tun` and go no further. A line edit passes these keys on to its
// dialog, which would take them as a press of its default button.
class EingabeFilter : public QObject {
public:
    EingabeFilter(QLineEdit* box, std::function<void()> tun) : QObject(box), m_tun(std::move(tun)) {
        box->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::KeyPress) return QObject::eventFilter(o, e);
        const int taste = static_cast<QKeyEvent*>(e)->key();
        if (taste != Qt::Key_Return && taste != Qt::Key_Enter) return false;
        m_tun();
        return true;
    }

private:
    std::function<void()> m_tun;
};

void EingabeBleibt(QLineEdit* box, std::function<void()> tun) {
    new EingabeFilter(box, std::move(tun));
}

} // namespace

FrmBild::FrmBild(AppState& state, Oberflaeche& ui, bool rahmenNeu, QWidget* parent)
    : QDialog(parent), s(state), m_ui(ui), m_rahmenNeu(rahmenNeu) {
    setObjectName(QStringLiteral("frmBild"));
    setWindowTitle(QStringLiteral("Bilder und Grafiken"));
    const int b = static_cast<int>(s.BildNummer);
    if (b >= 1 && s.Bildliste.Gueltig(b)) m_bild = s.Bildliste(b);
    const int r = static_cast<int>(s.RahmenNummer);
    if (r >= 1 && s.Rahmenliste.Gueltig(r)) m_rahmen = s.Rahmenliste(r);

    m_fuellen = true;
    auto* haupt = new QVBoxLayout(this);
    m_tabs = Benannt(new QTabBar(this), QStringLiteral("TabStripSchrift"));
    m_seiten = new QStackedWidget(this);
    for (const auto& [titel, seite] : {std::pair{QStringLiteral("Bilddatei"), SeiteDatei()},
                                       std::pair{QStringLiteral("Bildkorrekturen"), SeiteKorrekturen()},
                                       std::pair{QStringLiteral("Effekte"), SeiteEffekte()},
                                       std::pair{QStringLiteral("Drehen"), SeiteDrehen()}}) {
        m_tabs->addTab(titel);
        m_seiten->addWidget(seite);
    }
    connect(m_tabs, &QTabBar::currentChanged, m_seiten, &QStackedWidget::setCurrentIndex);

    auto* mitte = new QHBoxLayout;
    mitte->addWidget(m_seiten, 1);
    m_lead1 = Benannt(new QLabel(this), QStringLiteral("Lead1"));
    m_lead1->setFixedSize(Vorschaubreite, Vorschauhoehe);
    m_lead1->setFrameShape(QFrame::Box);
    m_lead1->setAccessibleName(QStringLiteral("Vorschau"));
    mitte->addWidget(m_lead1);
    haupt->addWidget(m_tabs);
    haupt->addLayout(mitte);

    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch(1);
    auto* ok = Benannt(new QPushButton(QStringLiteral("Ok"), this), QStringLiteral("Command3"));
    auto* abbruch = Benannt(new QPushButton(QStringLiteral("Abbruch"), this), QStringLiteral("Command1"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &FrmBild::accept);
    connect(abbruch, &QPushButton::clicked, this, &FrmBild::reject);
    knoepfe->addWidget(ok);
    knoepfe->addWidget(abbruch);
    haupt->addLayout(knoepfe);

    // The file shown is loaded for the preview; a missing one leaves the preview empty.
    if (!m_bild.File.isEmpty()) {
        try {
            m_vorlage = LadeVorschauvorlage(m_bild.File, m_lead1->size());
        } catch (const LeadFehler&) {
        }
    }
    m_fuellen = false;
    VorschauNeu();
}

QWidget* FrmBild::SeiteDatei() {
    auto* w = new QWidget(this);
    auto* l = new QVBoxLayout(w);
    auto* ordner = new QHBoxLayout;
    m_dir1 = Benannt(new QLineEdit(w), QStringLiteral("Dir1"));
    auto* drive1 = Benannt(new QPushButton(QStringLiteral("Durchsuchen..."), w), QStringLiteral("Drive1"));
    ordner->addWidget(m_dir1, 1);
    ordner->addWidget(drive1);
    l->addWidget(new QLabel(QStringLiteral("Bilddatei"), w));
    l->addLayout(ordner);
    m_file1 = Benannt(new QListWidget(w), QStringLiteral("File1"));
    l->addWidget(m_file1, 1);
    // The kinds of file the picture library of this system reads, not a fixed list.
    auto* formate = Benannt(new QLabel(QStringLiteral("Unterstützte Formate: ") + BildmusterText(), w),
                            QStringLiteral("LabelFormate"));
    l->addWidget(formate);
    m_check1 = Benannt(new QCheckBox(QStringLiteral("Graustufen"), w), QStringLiteral("Check1"));
    m_check2 = Benannt(new QCheckBox(QStringLiteral("Invertiert"), w), QStringLiteral("Check2"));
    m_check1->setChecked(m_bild.Gray != 0);
    m_check2->setChecked(m_bild.Invert != 0);
    l->addWidget(m_check1);
    l->addWidget(m_check2);

    const QFileInfo datei(m_bild.File);
    OrdnerZeigen(m_bild.File.isEmpty() ? (m_bild.File_Path.isEmpty() ? QDir::homePath() : m_bild.File_Path)
                                       : datei.absolutePath());
    // Return in the path box takes the path and leaves the dialog open: without this the dialog's
    // default button would take it as Ok and, with no file chosen yet, delete the new frame.
    EingabeBleibt(m_dir1, [this] { PfadGetippt(true); });
    connect(m_dir1, &QLineEdit::editingFinished, this, [this] {
        if (!m_fuellen && QDir(m_dir1->text()) != QDir(m_file1->property("ordner").toString()))
            PfadGetippt(false); // leaving the box for a button: no message in the way of the click
    });
    connect(m_file1, &QListWidget::itemActivated, this, [this](QListWidgetItem* eintrag) {
        DateiGewaehlt(QDir(m_dir1->text()).filePath(eintrag->text()));
    });
    connect(m_file1, &QListWidget::itemClicked, this, [this](QListWidgetItem* eintrag) {
        DateiGewaehlt(QDir(m_dir1->text()).filePath(eintrag->text()));
    });
    connect(drive1, &QPushButton::clicked, this, [this] {
        const QString pfad = QFileDialog::getOpenFileName(
            this, QStringLiteral("Bilddatei"), m_dir1->text(),
            QStringLiteral("Bilder (%1);;Alle Dateien (*)").arg(Bildmuster().join(u' ')));
        if (!pfad.isEmpty()) DateiGewaehlt(pfad);
    });
    connect(m_check1, &QCheckBox::toggled, this, [this](bool an) {
        if (m_fuellen) return;
        m_bild.Gray = an ? -1 : 0;
        VorschauNeu();
    });
    connect(m_check2, &QCheckBox::toggled, this, [this](bool an) {
        if (m_fuellen) return;
        m_bild.Invert = an ? -1 : 0;
        VorschauNeu();
    });
    return w;
}

QSlider* FrmBild::Regler(const QString& name, int von, int bis, int wert) {
    auto* r = Benannt(new QSlider(Qt::Horizontal, this), name);
    r->setRange(von, bis);
    r->setValue(std::clamp(wert, von, bis));
    r->setTracking(true);
    return r;
}

QWidget* FrmBild::SeiteKorrekturen() {
    auto* w = new QWidget(this);
    auto* f = new QFormLayout(w);
    for (int i = 0; i <= 4; ++i) {
        const auto regler = static_cast<Bildregler>(i);
        m_slider1[i] =
            Regler(QStringLiteral("Slider1_%1").arg(i), -100, 100, BildreglerStellung(m_bild, regler));
        f->addRow(QString::fromUtf8(Reglernamen[i]), m_slider1[i]);
    }
    for (int i = 0; i <= 4; ++i)
        connect(m_slider1[i], &QSlider::valueChanged, this, [this, i](int wert) {
            if (m_fuellen) return;
            SetzeBildregler(m_bild, static_cast<Bildregler>(i), wert);
            VorschauNeu();
        });
    return w;
}

QWidget* FrmBild::SeiteEffekte() {
    auto* w = new QWidget(this);
    auto* f = new QFormLayout(w);
    for (int i = 5; i <= 6; ++i) {
        m_slider1[i] = Regler(QStringLiteral("Slider1_%1").arg(i), 0, i == 5 ? 100 : 20,
                              BildreglerStellung(m_bild, static_cast<Bildregler>(i)));
        f->addRow(QString::fromUtf8(Reglernamen[i]), m_slider1[i]);
        connect(m_slider1[i], &QSlider::valueChanged, this, [this, i](int wert) {
            if (m_fuellen) return;
            SetzeBildregler(m_bild, static_cast<Bildregler>(i), wert);
            VorschauNeu();
        });
    }
    m_slider3 = Regler(QStringLiteral("Slider3"), -45, 45, m_bild.EffektTrapez);
    f->addRow(QStringLiteral("Trapez"), m_slider3);
    connect(m_slider3, &QSlider::valueChanged, this, [this](int wert) {
        if (m_fuellen) return;
        m_bild.EffektTrapez = static_cast<int16_t>(wert);
        VorschauNeu();
    });
    f->addRow(new QLabel(QStringLiteral("leer"), w));
    f->addRow(new QLabel(QStringLiteral("leer"), w));
    return w;
}

QWidget* FrmBild::SeiteDrehen() {
    auto* w = new QWidget(this);
    auto* f = new QFormLayout(w);
    m_slider2 = Regler(QStringLiteral("Slider2"), 0, 360, m_bild.Rotate / 100);
    m_text1 = Benannt(new QLineEdit(WinkelText(m_bild), w), QStringLiteral("Text1"));
    f->addRow(QStringLiteral("Drehen"), m_slider2);
    f->addRow(QStringLiteral("Winkel"), m_text1);
    connect(m_slider2, &QSlider::valueChanged, this, [this](int wert) {
        if (m_fuellen) return;
        SetzeDrehung(m_bild, wert);
        m_fuellen = true;
        m_text1->setText(WinkelText(m_bild));
        m_fuellen = false;
        VorschauNeu();
    });
    EingabeBleibt(m_text1, [this] { WinkelUebernehmen(); });
    connect(m_text1, &QLineEdit::editingFinished, this, &FrmBild::WinkelUebernehmen);
    return w;
}

void FrmBild::WinkelUebernehmen() {
    if (m_fuellen) return;
    const QString zeigt = WinkelGetippt(m_bild, m_text1->text());
    m_fuellen = true;
    if (zeigt != m_text1->text()) m_text1->setText(zeigt);
    m_slider2->setValue(m_bild.Rotate / 100);
    m_fuellen = false;
    VorschauNeu();
}

// A folder typed shows its pictures; a file typed is chosen as if clicked in the list.
void FrmBild::PfadGetippt(bool melden) {
    const QString pfad = m_dir1->text().trimmed();
    const QFileInfo info(pfad);
    if (info.isDir()) {
        OrdnerZeigen(info.absoluteFilePath());
    } else if (info.isFile()) {
        DateiGewaehlt(info.absoluteFilePath());
    } else if (melden) {
        m_ui.Meldung(QStringLiteral("Den Ordner oder die Datei \"%1\" gibt es nicht.").arg(pfad),
                     QStringLiteral("Hinweis"));
        m_dir1->setText(m_file1->property("ordner").toString());
    }
}

void FrmBild::OrdnerZeigen(const QString& ordner) {
    m_dir1->setText(ordner);
    m_file1->setProperty("ordner", ordner);
    m_file1->clear();
    QDir d(ordner);
    d.setNameFilters(Bildmuster());
    d.setFilter(QDir::Files | QDir::Readable);
    d.setSorting(QDir::Name | QDir::IgnoreCase);
    m_file1->addItems(d.entryList());
    const QList<QListWidgetItem*> treffer = m_file1->findItems(m_bild.File_Name, Qt::MatchExactly);
    if (!treffer.isEmpty()) m_file1->setCurrentItem(treffer.first());
}

void FrmBild::DateiGewaehlt(const QString& pfad) {
    SetzeBilddatei(m_bild, pfad);
    if (QDir(m_dir1->text()) != QDir(m_bild.File_Path)) OrdnerZeigen(m_bild.File_Path);
    try {
        m_vorlage = LadeVorschauvorlage(pfad, m_lead1->size());
        RahmenNachBild(m_rahmen, m_vorlage.original.width(), m_vorlage.original.height());
    } catch (const LeadFehler& e) {
        m_vorlage = {};
        m_ui.Meldung(e.Text(), QStringLiteral("Hinweis"), pfad);
    }
    VorschauNeu();
}

void FrmBild::VorschauNeu() {
    if (m_fuellen) return;
    ImageCanvas box(m_lead1->size(), CanvasArt::Vorschau);
    box.Cls();
    if (!m_vorlage.Leer()) {
        Lead& lead1 = BildwerkVon(s).Lead1;
        try {
            BildVorschau(m_bild, m_vorlage, lead1);
            // The picture keeps its proportions in the middle of the box.
            const QSizeF bild(lead1.BitmapWidth(), lead1.BitmapHeight());
            const QSizeF platz = bild.scaled(QSizeF(m_lead1->size()), Qt::KeepAspectRatio);
            const double x = (m_lead1->width() - platz.width()) / 2;
            const double y = (m_lead1->height() - platz.height()) / 2;
            lead1.Render(box,
                         QRectF(x * box.TwipsPerPixelX(), y * box.TwipsPerPixelY(),
                                platz.width() * box.TwipsPerPixelX(), platz.height() * box.TwipsPerPixelY()));
        } catch (const LeadFehler& e) {
            m_ui.Meldung(e.Text(), QStringLiteral("Hinweis"), m_bild.File);
        }
    }
    m_vorschaubild = box.Bild();
    m_lead1->setPixmap(QPixmap::fromImage(m_vorschaubild));
}

void FrmBild::accept() {
    BildUebernehmen(s, m_ui, m_bild, m_rahmen);
    QDialog::accept();
}

void FrmBild::reject() {
    BildAbbrechen(s, m_ui, m_rahmenNeu);
    QDialog::reject();
}

bool FrmBild::Bearbeiten(AppState& s, Oberflaeche& ui, bool rahmenNeu, QWidget* parent) {
    FrmBild dialog(s, ui, rahmenNeu, parent);
    return dialog.exec() == QDialog::Accepted && QFileInfo(dialog.Kopie().File).isFile();
}

} // namespace zp
