// SPDX-License-Identifier: MIT
// Any call of the interface by which the desktop and later launches reach the running program, one
// argument a line. Every URI becomes one file, in order, and each call ends in what it asks for.
// What is opened has the name that is shown, and that is one line.
#include "app/desktop/file_handover_adaptor.h"
#include "fuzz/require.h"
#include "platform/file_path.h"
#include "platform/one_line_text.h"

namespace {

using namespace quillon;

struct Heard {
    QList<QUrl> files;
    int activations = 0;
    int follows = 0;
    int panels = 0;
};

void listen(ActivationRequests& requests, Heard& heard)
{
    QObject::connect(&requests, &ActivationRequests::filesReceived, &requests,
                     [&heard](const QList<QUrl>& urls) { heard.files = urls; });
    QObject::connect(&requests, &ActivationRequests::activationRequested, &requests,
                     [&heard] { ++heard.activations; });
    QObject::connect(&requests, &ActivationRequests::followRequested, &requests,
                     [&heard] { ++heard.follows; });
    QObject::connect(&requests, &ActivationRequests::openPanelRequested, &requests,
                     [&heard] { ++heard.panels; });
}

QVariantMap platformData(int kind, const QString& text)
{
    static const QStringList keys{QStringLiteral("activation-token"),
                                  QStringLiteral("desktop-startup-id"), QStringLiteral("other")};
    const QList<QVariant> values{text, text.toUtf8(), text.size(), QVariantMap{{text, text}}};
    return {{keys[kind % keys.size()], values[kind / keys.size() % values.size()]}};
}

void checkFile(const QUrl& url)
{
    const QString path = pathOfFileUrl(url);
    require(!bytesOfPath(path).contains('\0'));
    require(oneLineText(displayedPath(path)) == displayedPath(path));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const int method = takeBelow(bytes, 4);
    const int kind = takeBelow(bytes, 12);
    const QStringList texts = QString::fromUtf8(bytes).split(u'\n');
    const QVariantMap platform = platformData(kind, texts.last());
    ActivationRequests requests;
    FileHandoverAdaptor& adaptor = *new FileHandoverAdaptor(requests);
    Heard heard;
    listen(requests, heard);
    if (method == 0) {
        adaptor.Activate(platform);
        require(heard.activations == 1 && heard.files.isEmpty());
    } else if (method == 1) {
        const QVariantList parameters(texts.begin(), texts.end());
        adaptor.ActivateAction(texts.first(), parameters, platform);
        require(heard.follows == (texts.first() == kFollowAction ? 1 : 0));
        require(heard.panels == (texts.first() == kOpenLogAction ? 1 : 0));
    } else {
        adaptor.Open(texts, platform);
        require(heard.activations == 1 && heard.files == QUrl::fromStringList(texts));
        require(heard.files.size() == texts.size());
        for (const QUrl& url : heard.files) {
            checkFile(url);
        }
    }
    return 0;
}
