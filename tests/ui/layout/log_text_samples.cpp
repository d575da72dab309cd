// SPDX-License-Identifier: MIT
#include "tests/ui/layout/log_text_samples.h"

#include "tests/support/test_data.h"

namespace quillon {

namespace {

const QStringList& codePieces()
{
    static const QStringList pieces{
        QStringLiteral("PHP Warning:  "),
        QStringLiteral("3.8.0"),
        QStringLiteral("$(5"),
        QStringLiteral("1/2"),
        QStringLiteral("-12,5 %"),
        QStringLiteral("/var/www/html/wp-content/plugins/a-b/class_c.php"),
        QStringLiteral("in "),
        QStringLiteral("on line 42"),
        QStringLiteral("$foo->bar('x', [\"k\" => 1])"),
        QStringLiteral("{}()[]<>!?;:,.+*/-=#@&|~^%`'\"\\_$"),
        QStringLiteral("#0 {main}"),
        QStringLiteral("[22-Jul-2024 10:11:12 UTC] "),
        QStringLiteral("https://example.org/?a=1&b=%20#c"),
        QStringLiteral(" "),
        QStringLiteral("  "),
        QStringLiteral("--"),
        QStringLiteral("x"),
        QStringLiteral("(1) "),
        QStringLiteral("€5 "),
        QStringLiteral("5% "),
        QStringLiteral("!"),
    };
    return pieces;
}

const QStringList& prosePieces()
{
    static const QStringList pieces{
        QStringLiteral("l’été "),
        QStringLiteral("« guillemets » "),
        QStringLiteral("déjà… "),
        QStringLiteral("c’est-à-dire "),
        QStringLiteral("Œuvre — "),
        QStringLiteral("“cité” "),
        QStringLiteral("aujourd’hui"),
        QStringLiteral("n° 5, "),
        QStringLiteral("\u00A0: "),
        QStringLiteral("\u202F! "),
        QStringLiteral("10\u202F000 "),
        QStringLiteral("• "),
        QStringLiteral("–"),
    };
    return pieces;
}

const QStringList& otherPieces()
{
    static const QStringList pieces{
        QStringLiteral("错误日志"),
        QStringLiteral("数据库连接失败。"),
        QStringLiteral("，第3行"),
        QStringLiteral("「错误」"),
        QStringLiteral("Ошибка: "),
        QStringLiteral("Σφάλμα "),
        QStringLiteral("\t"),
        QStringLiteral("\t\t"),
        QStringLiteral("→ "),
        QStringLiteral("≤ ±"),
        QStringLiteral("│├──"),
        QString(QChar(0x07)),
        QString(QChar(0x1B)) + QStringLiteral("[31m"),
        QString(QChar(0x00)),
        QString(QChar(0x7F)),
        QString(40, u'w'),
        QString(9, u' '),
    };
    return pieces;
}

} // namespace

QStringList randomPlainLines(RandomText& random, int count)
{
    const QStringList mixed = codePieces() + prosePieces() + otherPieces();
    const QStringList accented = codePieces() + prosePieces();
    QStringList lines;
    for (int i = 0; i < count; ++i) {
        const QStringList& pieces = i % 3 == 0 ? codePieces() : i % 3 == 1 ? accented : mixed;
        lines.append(random.join(pieces, 12));
    }
    return lines;
}

QStringList unusualLines()
{
    return {
        QStringLiteral("emoji 🙂 and 👩‍👩‍👧 family 🇫🇷 flag"),
        QStringLiteral("cafe\u0301 combining a\u0308\u0304 marks"),
        QStringLiteral("خطأ في قاعدة البيانات line 12"),
        QStringLiteral("שגיאה במסד הנתונים abc 3.8"),
        QStringLiteral("त्रुटि संदेश क्षेत्र"),
        QStringLiteral("ข้อผิดพลาดในฐานข้อมูล"),
        QStringLiteral("\uFEFFafter a byte order mark"),
        QStringLiteral("replaced \uFFFD\uFFFD here"),
        QStringLiteral("soft\u00ADhyphen and zero\u200Bwidth"),
        QStringLiteral("wide\u3000space\u2003here"),
        QStringLiteral("lone ") + QChar(0xD83D) + QStringLiteral(" half"),
        QStringLiteral("bidi \u202Eoverride\u202C end"),
        QStringLiteral("오류 메시지 데이터베이스 ᄒ\u1161\u11AB jamo"),
        QString(QChar(0x00)) + QStringLiteral("🙂") + QChar(0x1B),
    };
}

QStringList excerptLines()
{
    QStringList lines;
    for (const QString& name : testDataNames()) {
        lines += QString::fromUtf8(testData(name)).split(u'\n');
    }
    return lines;
}

} // namespace quillon
