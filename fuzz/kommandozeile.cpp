// The command-line parser: any list of arguments (the input split at NUL bytes) ends in a
// parsed line or a German refusal, never in a crash; a parsed line keeps every argument.
#include "app/Kommandozeile.h"
#include "FuzzHilfe.h"

#include <QByteArray>
#include <QStringList>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    QStringList args;
    for (const QByteArray& teil : zp::fuzz::Bytes(data, size).split('\0'))
        args << QString::fromLocal8Bit(teil);
    QString fehler;
    const auto zeile = zp::LeseKommandozeile(args, &fehler);
    if (!zeile && fehler.isEmpty()) __builtin_trap(); // a refusal always says why
    if (zeile) {
        for (const zp::OptionAufruf& aufruf : zeile->aufrufe)
            if (aufruf.option == nullptr) __builtin_trap();
        (void)zeile->HatAktionen();
    }
    return 0;
}
