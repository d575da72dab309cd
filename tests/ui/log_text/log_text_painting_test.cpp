// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/ui/log_text/log_text_painting_fixture.h"
#include "ui/layout/hit_testing.h"

namespace quillon {
namespace {

TEST_F(LogTextPainting, AnEmptyTextIsNothingButBackground)
{
    show(wrapped(AttributedString()));
    const QImage image = painted();
    EXPECT_EQ(inkIn(image, image.rect()), 0);
}

TEST_F(LogTextPainting, ARowIsPaintedWhereItsCharactersAre)
{
    show(wrapped(sampleText({QStringLiteral("xxxx"), QString(), QStringLiteral("xxxx")})));
    const QImage image = painted();
    for (const qsizetype offset : {0, 2, 3, 4, 5}) {
        EXPECT_GT(inkIn(image, boxOf(0, offset, offset + 1)), 5) << offset;
    }
    EXPECT_EQ(inkIn(image, lineOf(1).adjusted(30, 0, 0, 0)), 0);
}

TEST_F(LogTextPainting, ARedRunIsRedInItsBoxAndNowhereElse)
{
    show(wrapped(
        sampleText({QStringLiteral("a boom b"), QStringLiteral("nothing")}, boomAs(inRed()))));
    const QImage image = painted();
    const QRect box = boxOf(0, 4, 8);
    EXPECT_GT(count(image, box, isReddish), 20);
    EXPECT_EQ(count(image, image.rect(), isReddish), count(image, box, isReddish));
}

TEST_F(LogTextPainting, AColouredRunInARowThatNeedsShapingIsColouredToo)
{
    show(wrapped(sampleText({QStringLiteral("e\u0301 boom e\u0301")}, boomAs(inRed()))));
    const QImage image = painted();
    const QRect box = boxOf(0, 5, 9);
    EXPECT_GT(count(image, box, isReddish), 20);
    EXPECT_EQ(count(image, image.rect(), isReddish), count(image, box, isReddish));
}

TEST_F(LogTextPainting, ABoldRunHasMoreInkThanTheSameTextRegular)
{
    show(wrapped(sampleText({QStringLiteral("boom")})));
    const int regular = inkIn(painted(), boxOf(0, 2, 6));
    update(wrapped(sampleText({QStringLiteral("boom")}, boomAs(inBold()))));
    EXPECT_GT(inkIn(painted(), boxOf(0, 2, 6)), regular);
}

TEST_F(LogTextPainting, ASearchMatchHasItsBackgroundInItsBoxAndNowhereElse)
{
    const Color match = Color::system(SystemColor::SelectedTextBackground, 0.35);
    for (const QString& line : {QStringLiteral("a boom b"), QStringLiteral("e\u0301 boom e\u0301"),
                                QStringLiteral("שגיאה boom")}) {
        show(wrapped(sampleText({line}, boomAs(on(match)))));
        const QImage image = painted();
        const qsizetype at = 2 + line.indexOf(QStringLiteral("boom"));
        const QRect box = boxOf(0, at, at + 4);
        const QRgb corner = image.pixel(box.left() + 1, box.top() + 1);
        EXPECT_NE(corner, background()) << ::testing::PrintToString(line);
        const auto isMatch = [corner](QRgb pixel) {
            return pixel == corner;
        };
        EXPECT_GT(count(image, box, isMatch), box.width() * box.height() / 3);
        EXPECT_EQ(count(image, image.rect(), isMatch), count(image, box, isMatch));
    }
}

TEST_F(LogTextPainting, ASelectionIsPaintedUnderItsCharacters)
{
    show(wrapped(sampleText({QStringLiteral("a boom b")})));
    view->setTextSelection(TextPosition{0, 4}, TextPosition{0, 8});
    const QImage image = painted();
    const QRgb selected = resolved(SystemColor::SelectedTextBackground);
    const QRect box = boxOf(0, 4, 8);
    const auto isSelected = [selected](QRgb pixel) {
        return pixel == selected;
    };
    EXPECT_GT(count(image, box, isSelected), box.width() * box.height() / 3);
    EXPECT_EQ(count(image, image.rect(), isSelected), count(image, box, isSelected));
    EXPECT_GT(count(image, box, [selected](QRgb pixel) { return pixel != selected; }), 20);
}

TEST_F(LogTextPainting, ASelectedLineFeedShowsBehindItsRow)
{
    show(wrapped(sampleText({QStringLiteral("ab"), QString()})));
    view->setTextSelection(TextPosition{0, 4}, TextPosition{1, 0});
    const QRect end = view->boxOfPosition(TextPosition{0, 4});
    EXPECT_EQ(painted().pixel(end.left() + 2, end.center().y()),
              resolved(SystemColor::SelectedTextBackground));
}

TEST_F(LogTextPainting, ASelectionOfEverythingHasNoGaps)
{
    const QStringList lines{QStringLiteral("plain"),
                            QStringLiteral("שגיאה במסד abc"),
                            QStringLiteral("abc שגיאה"),
                            QStringLiteral("خطأ في قاعدة 12 x"),
                            QStringLiteral("e\u0301\ttab 🙂 x"),
                            QStringLiteral("त्रुटि संदेश")};
    show(wrapped(sampleText(lines)), QSize(600, 300));
    view->selectAll();
    const QImage image = painted();
    const QRgb selected = resolved(SystemColor::SelectedTextBackground);
    for (qsizetype row = 0; row < lines.size(); ++row) {
        const QRect line = lineOf(row);
        const int first = static_cast<int>(textOrigin().x()) + 1;
        int last = image.width() - 1;
        while (last > first && image.pixel(last, line.top()) != selected) {
            --last;
        }
        EXPECT_GT(last, first + 40) << row;
        const QRgb empty = background();
        EXPECT_EQ(count(image, QRect(first, line.top(), last - first, line.height()),
                        [empty](QRgb pixel) { return pixel == empty; }),
                  0)
            << row;
        EXPECT_EQ(inkIn(image, QRect(last + 1, line.top(), image.width(), line.height())), 0)
            << row;
    }
}

TEST_F(LogTextPainting, APartPaintedAloneLooksLikeThatPartOfTheWhole)
{
    RandomText random(8);
    const QStringList lines = randomPlainLines(random, 60) + unusualLines();
    const AttributedString text = sampleText(lines, boomAs(inRed()));
    for (const LogTextContent& content : {wrapped(text), unwrapped(text)}) {
        show(content, QSize(500, 400));
        view->selectAll();
        horizontal().setValue(37);
        const QImage whole = painted();
        for (int i = 0; i < 20; ++i) {
            const QRect part(
                static_cast<int>(random.below(400)), static_cast<int>(random.below(300)),
                1 + static_cast<int>(random.below(90)), 1 + static_cast<int>(random.below(90)));
            const QImage alone =
                view->viewport()->grab(part).toImage().convertToFormat(QImage::Format_RGB32);
            EXPECT_EQ(alone, whole.copy(part)) << i;
        }
    }
}

TEST_F(LogTextPainting, WrappedTextKeepsClearOfTheFramesInsets)
{
    RandomText random(9);
    QStringList lines = randomPlainLines(random, 40);
    lines += QString(2000, u'w');
    lines += QStringLiteral("错误日志").repeated(200);
    lines += QStringLiteral("خطأ في قاعدة ").repeated(50);
    for (const int width : {200, 317, 480}) {
        show(wrapped(sampleText(lines)), QSize(width, 600));
        for (const int top : {0, vertical().maximum() / 2, vertical().maximum()}) {
            vertical().setValue(top);
            const QImage image = painted();
            const int right = image.width() - static_cast<int>(kTextInsetWidth);
            EXPECT_EQ(inkIn(image, QRect(right, 0, image.width(), image.height())), 0) << width;
            EXPECT_EQ(inkIn(image, QRect(0, 0, static_cast<int>(kTextInsetWidth), image.height())),
                      0)
                << width;
        }
    }
}

TEST_F(LogTextPainting, RowsThatNeedShapingArePainted)
{
    show(wrapped(sampleText(unusualLines())), QSize(700, 400));
    const QImage image = painted();
    for (qsizetype row = 0; row < unusualLines().size(); ++row) {
        EXPECT_GT(inkIn(image, lineOf(row).adjusted(60, 0, 0, 0)), 40) << row;
    }
}

TEST_F(LogTextPainting, ControlCharactersAreVisibleAndAllDifferent)
{
    QString controls;
    for (char16_t control = 0; control <= 0x7F; control = control == 0x1F ? 0x7F : control + 1) {
        if (control != u'\t') {
            controls += QChar(control);
            controls += u' ';
        }
    }
    for (const QString& ending : {QString(), QStringLiteral("e\u0301"), QStringLiteral("שגיאה")}) {
        show(unwrapped(sampleText({controls + ending})), QSize(900, 100));
        const QImage image = painted();
        std::vector<QImage> pictures;
        for (qsizetype at = 2; at < controls.size(); at += 2) {
            const QRect box = boxOf(0, at, at + 1);
            EXPECT_GT(inkIn(image, box), 8) << at;
            const QRect shape(box.topLeft(), QSize(7, box.height()));
            pictures.push_back(image.copy(shape));
        }
        for (std::size_t one = 0; one < pictures.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other) {
                EXPECT_NE(pictures[one], pictures[other]) << one << " " << other;
            }
        }
    }
}

TEST_F(LogTextPainting, AControlCharacterHasTheColourOfItsRunAndStaysInItsColumn)
{
    const auto runs = [](const AttributedRow& row) {
        return std::vector<AttributeRun>{{0, 4, {}}, {4, 1, inRed()}, {5, row.length() - 5, {}}};
    };
    for (const QString& ending : {QString(), QStringLiteral(" e\u0301")}) {
        show(wrapped(sampleText({QStringLiteral("  \u001B  x") + ending}, runs)));
        const QImage image = painted();
        const QRect box = boxOf(0, 4, 5);
        EXPECT_GT(count(image, box, isReddish), 5);
        EXPECT_EQ(inkIn(image, boxOf(0, 2, 3)), 0);
        EXPECT_EQ(inkIn(image, boxOf(0, 6, 7)), 0);
        EXPECT_EQ(count(image, image.rect(), isReddish), count(image, box, isReddish));
    }
}

TEST_F(LogTextPainting, TheWholeHeightIsUsedWhereverItIsScrolledTo)
{
    show(wrapped(sampleText(manyLines())));
    for (const int top : {0, 7, 1003, vertical().maximum() - 10}) {
        vertical().setValue(top);
        const QImage image = painted();
        const int middle = image.height() - 40;
        EXPECT_GT(inkIn(image, QRect(0, 20, image.width(), 20)), 50) << top;
        EXPECT_GT(inkIn(image, QRect(0, middle, image.width(), 20)), 50) << top;
    }
}

TEST_F(LogTextPainting, AnUnbrokenVeryLongLineIsPaintedWhereverItIsScrolledTo)
{
    const QString emoji = QString(1 << 20, u'x') + QStringLiteral("🙂") + QString(1 << 20, u'y');
    for (const QString& line : {QString(2 << 20, u'x'), emoji}) {
        show(unwrapped(sampleText({line})));
        for (const int part : {0, 1, 2, 3, 4}) {
            horizontal().setValue(static_cast<int>(qint64{horizontal().maximum()} * part / 4));
            const QRect row(30, 10, view->viewport()->width() - 60, 18);
            EXPECT_GT(inkIn(painted(), row), 500) << part;
        }
    }
}

} // namespace
} // namespace quillon
