// SPDX-License-Identifier: MIT
// The life of a followed log: appended to, truncated, replaced, deleted between polls, as the bytes
// say. After each poll the view model must show what a simple model of the file and of the rules
// says: reading goes on, in the file that was opened, where the named file last ended.
#include "fuzz/require.h"
#include "model/log_view_model.h"
#include "model/records/decode_text.h"
#include "platform/notification_center.h"
#include "platform/user_defaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace {

using namespace quillon;

// A folder in memory where there is one: a disk would be most of what is measured.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFile::exists(memory) ? memory : QDir::tempPath()) + QStringLiteral("/quillon-XXXXXX");
}

// What all inputs share, since making it takes longer than an input.
struct World {
    int argc = 1;
    char name[8] = "fuzz";
    char* argv[2] = {name, nullptr};
    // A test program has one already.
    std::unique_ptr<QCoreApplication> application{
        QCoreApplication::instance() ? nullptr : new QCoreApplication(argc, argv)};
    QTemporaryDir folder{folderTemplate()};
    NotificationCenter center;
    UserDefaults defaults{center, QStringLiteral("/nonexistent/Quillon.conf")};
    LogViewModel viewModel{defaults, center};
    QString path = folder.filePath(QStringLiteral("php.log"));
};

using Content = std::shared_ptr<QByteArray>;

class Life {
public:
    explicit Life(World& world) : m_world(world)
    {
        QFile::remove(m_world.path);
        m_world.viewModel.followTail.set(true);
    }

    void open(QByteArrayView bytes)
    {
        replace(bytes);
        m_opened = m_named;
        m_lines = linesOf(*m_opened);
        m_offset = m_opened->size();
        m_world.viewModel.openLog(QUrl::fromLocalFile(m_world.path));
        m_world.viewModel.pollTimer->stop();
        check();
    }
    void append(QByteArrayView bytes)
    {
        if (!m_named) {
            return replace(bytes);
        }
        m_named->append(bytes);
        write(m_world.path, bytes, QIODevice::Append);
    }
    void truncate(qsizetype size)
    {
        if (m_named) {
            m_named->resize(qMin(size, m_named->size()));
            require(QFile::resize(m_world.path, m_named->size()));
        }
    }
    // Another file takes the name; whoever has the former one open keeps it.
    void replace(QByteArrayView bytes)
    {
        remove();
        m_named = std::make_shared<QByteArray>(bytes.toByteArray());
        write(m_world.path, bytes, QIODevice::WriteOnly);
    }
    void remove()
    {
        m_named.reset();
        QFile::remove(m_world.path);
    }
    void poll()
    {
        m_world.viewModel.pollTail();
        if (m_named && m_named->size() > m_offset) {
            m_lines += linesOf(m_opened->mid(m_offset));
            m_offset = m_named->size();
        }
        check();
        const bool hasError = m_world.viewModel.lastError().has_value();
        require(hasError == !m_named);
    }

private:
    static void write(const QString& path, QByteArrayView bytes, QIODevice::OpenMode mode)
    {
        QFile file(path);
        require(file.open(mode | QIODevice::Unbuffered));
        require(file.write(bytes.data(), bytes.size()) == bytes.size());
    }
    static bool isTerminator(QChar character)
    {
        return QStringLiteral("\n\r\u0085\u2028\u2029").contains(character);
    }
    static QStringList linesOf(const QByteArray& bytes)
    {
        QString text = decodeText(bytes);
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (text.isEmpty() || (text.size() == 1 && isTerminator(text[0]))) {
            return {};
        }
        if (isTerminator(text.back())) {
            text.chop(1);
        }
        QStringList lines{QString()};
        for (const QChar character : text) {
            if (isTerminator(character)) {
                lines.append(QString());
            } else {
                lines.last().append(character);
            }
        }
        return lines;
    }
    void check() const
    {
        const LogLines& lines = m_world.viewModel.lines.get();
        require(lines.size() == m_lines.size());
        require(m_world.viewModel.lastFileSize == quint64(m_offset));
        qint64 number = 0;
        for (const LogLine& line : lines) {
            require(line.text() == m_lines[number]);
            require(line.number() == ++number);
        }
        require(m_world.viewModel.attributedOutput.get().rows().size() == lines.size());
    }

    World& m_world;
    Content m_named;  // null while nobody has the name
    Content m_opened; // what the view model has open
    QStringList m_lines;
    qsizetype m_offset = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static World world;
    QByteArrayView bytes(data, static_cast<qsizetype>(qMin<std::size_t>(size, 1024)));
    Life life(world);
    life.open(takePiece(bytes));
    while (!bytes.isEmpty()) {
        switch (takeBelow(bytes, 8)) {
        case 0:
            life.truncate(takeBelow(bytes, 256));
            break;
        case 1:
            life.replace(takePiece(bytes));
            break;
        case 2:
            life.remove();
            break;
        case 3:
            life.open(takePiece(bytes));
            break;
        default:
            life.append(takePiece(bytes));
            break;
        }
        life.poll();
    }
    return 0;
}
