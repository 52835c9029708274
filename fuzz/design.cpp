// Design files: any bytes, in every edition and with every kind of load, must either load or be
// refused with the document left intact; a load must write back without fault.
#include "persist/Design.h"
#include "FuzzHilfe.h"
#include "core/state/AppState.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    zp::fuzz::StarteAnwendung(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = zp::fuzz::Bytes(data, size);
    // The length chooses the edition and the kind of load, so that the whole input is the file
    // and the shipped designs load as seeds, and all branches still get exercised.
    const auto wahl = static_cast<uint8_t>(size % 15);
    zp::AppState s;
    zp::Oberflaeche ui;
    zp::fuzz::WaehleAusgabe(s, wahl);
    const char* vorgaben[] = {"", "neu", "/vorlage.zpv"};
    s.Ladevorgabe = QString::fromLatin1(vorgaben[(wahl / 5) % 3]);
    s.Schriftenliste(1) = QStringLiteral("Arial");
    s.Schriftliste(1).Textstring = QStringLiteral("bleibt");
    if (zp::LadeDesignAusBytes(s, ui, bytes)) {
        // What was loaded is written and loaded again. The format can't carry every value (a `Top`
        // of 0,5 reads as a continuation line), so a refusal is allowed, a changed document not.
        const QByteArray geschrieben = zp::SchreibeDesign(s);
        s.Ladevorgabe.clear();
        if (!zp::LadeDesignAusBytes(s, ui, geschrieben) && zp::SchreibeDesign(s) != geschrieben)
            __builtin_trap();
    } else if (s.RahmenAnzahl != 0 || s.Schriftliste(1).Textstring != u"bleibt") {
        __builtin_trap(); // a refused file changed the document
    }
    return 0;
}
