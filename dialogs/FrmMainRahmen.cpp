// frmMain: the editing of frames bound to its commands: the Objekte menu, the page's context
// menu, the insert entries, undo and redo, and the page view's mouse and status panels.
#include "Eigenschaftsdialoge.h"
#include "Fensterantworten.h"
#include "FrmEinfuegen.h"
#include "FrmMain.h"
#include "Seitenansicht.h"

#include "core/Formatbefehle.h"
#include "core/Rahmenbefehle.h"
#include "core/state/AppState.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

namespace zp {

void FrmMain::RahmenVerbinden() {
    Fensterantworten& ui = *m_antworten;
    const auto binden = [this](std::initializer_list<QAction*> aktionen, auto befehl) {
        for (QAction* a : aktionen)
            connect(a, &QAction::triggered, this, befehl);
    };

    // Insertion: the form, or one kind at once; the page shows the cross until the box is drawn.
    Seitenbild* seite = m_seite->PictureSeite();
    const auto einfuegen = [this, &ui, seite](const QString& typ) {
        if (BefehlEinfuegen(s, ui, typ)) seite->setCursor(Qt::CrossCursor);
    };
    binden({m_a.mnuRahmenEinfügen, m_a.Toolbar1_Einfügen}, [this, einfuegen] {
        if (const int knopf = FrmEinfuegen::Fragen(false, this)) einfuegen(EinfuegeTyp(knopf));
    });
    binden({m_a.mnuTexteinfügen}, [einfuegen] { einfuegen(QStringLiteral("Schrift")); });
    binden({m_a.mnubildeinfügen}, [einfuegen] { einfuegen(QStringLiteral("Bild")); });
    binden({m_a.mnuLinieeinfügen}, [einfuegen] { einfuegen(QStringLiteral("Linie")); });
    binden({m_a.mnudatumeinfuegen}, [this, &ui] { PlatzhalterEinfuegen(s, ui, QStringLiteral("#Datum")); });
    binden({m_a.mnuzeit}, [this, &ui] { PlatzhalterEinfuegen(s, ui, QStringLiteral("#Zeit")); });
    binden({m_a.mnuseriennummer},
           [this, &ui] { PlatzhalterEinfuegen(s, ui, QStringLiteral("#Seriennummer")); });

    // The current frame: its dialog, position, deletion and place in the stack.
    binden({m_a.popEigenschaft}, [this, &ui] { OpenPropertyDialog(s, ui); });
    binden({m_a.mnuRahmenPositionieren, m_a.popPositionieren},
           [this, &ui] { PositionsdialogAusfuehren(this, s, ui); });
    binden({m_a.mnuRahmenLöschen, m_a.popLoeschen}, [this, &ui] { DeleteFrame(s, ui); });
    binden({m_a.mnuRahmenvorne, m_a.popganzvorn}, [this, &ui] { BringToFront(s, ui); });
    binden({m_a.mnuRahmenhinten, m_a.popganzhinten}, [this, &ui] { SendToBack(s, ui); });
    binden({m_a.mnuRahmeneinsvorn, m_a.popeinsvor}, [this, &ui] { OneForward(s, ui); });
    binden({m_a.mnuRahmeneinshinten, m_a.popeinshinten}, [this, &ui] { OneBack(s, ui); });

    // Anchoring: each toggle marks only its own menu; the popup's mark is set as it opens.
    for (QAction* a : {m_a.mnuverankert, m_a.mnuVerankern})
        connect(a, &QAction::triggered, this, [this, &ui, a] { a->setChecked(VerankernUmschalten(s, ui)); });
    binden({m_a.mnuVerankernAlle}, [this, &ui] { AlleVerankern(s, ui, true); });
    binden({m_a.mnuVerankernKeine}, [this, &ui] { AlleVerankern(s, ui, false); });

    // Undo and redo; the menu shows which is possible, the keys work whenever it is.
    binden({m_a.mnuRueckgaengig}, [this, &ui] { BefehlRueckgaengig(s, ui); });
    binden({m_a.mnuWiederholen}, [this, &ui] { BefehlWiederholen(s, ui); });
    m_a.mnuWiederholen->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(QKeySequence::Redo)});
    connect(m_a.mnuBearbeiten, &QMenu::aboutToShow, this, [this] {
        m_a.mnuRueckgaengig->setEnabled(KannRueckgaengig(s));
        m_a.mnuWiederholen->setEnabled(KannWiederholen(s));
    });
    connect(m_a.mnuBearbeiten, &QMenu::aboutToHide, this, [this] {
        m_a.mnuRueckgaengig->setEnabled(true);
        m_a.mnuWiederholen->setEnabled(true);
    });
    // The Objekte menu's check marks follow the settings as it opens.
    connect(m_a.mnuRahmen, &QMenu::aboutToShow, this, [this] { Haekchen(); });

    // The page: mouse and keys edit the frames; the status panels and the context menu follow.
    seite->Bearbeiten(s, ui);
    connect(seite, &Seitenbild::statusGeaendert, this, [this](int x, int y) {
        m_status[1]->setText(QStringLiteral("x = %1").arg(x));
        m_status[2]->setText(QStringLiteral("y = %1").arg(y));
    });
    connect(seite, &Seitenbild::kontextmenue, this, [this](QPoint wo, bool verankert) {
        m_a.mnuVerankern->setChecked(verankert);
        m_a.PopSchrift->popup(wo);
    });
}

} // namespace zp
