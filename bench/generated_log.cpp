// SPDX-License-Identifier: MIT
#include "bench/generated_log.h"

#include <array>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>

namespace quillon::bench {

namespace {

using namespace std::string_view_literals;

constexpr std::array kFiles{
    "/var/www/html/wp-content/plugins/boutique-lite/includes/class-cart.php"sv,
    "/var/www/html/wp-includes/class-wp-hook.php"sv,
    "/var/www/html/wp-content/themes/atelier/functions.php"sv,
    "/var/www/html/wp-content/plugins/agenda-evenements/agenda-evenements.php"sv,
};

constexpr std::array kMessages{
    "PHP Warning:  Undefined array key \"quantity\" in "sv,
    "PHP Warning:  Trying to access array offset on value of type null in "sv,
    "PHP Warning:  Undefined variable $total in "sv,
    "PHP Deprecated:  strlen(): Passing null to parameter #1 ($string) of type string is "
    "deprecated in "sv,
    "PHP Deprecated:  Function get_settings is <strong>deprecated</strong> since version 2.1.0! "
    "Use get_option() instead. in "sv,
    "PHP Notice:  Function wp_deregister_script was called <strong>incorrectly</strong>. in "sv,
};

constexpr std::array kFrench{
    "La commande de Zoé Lefèvre n’a pas pu être enregistrée : l’adresse « été » est refusée "
    "par le serveur, réessayez plus tard"sv,
    "Début de l’import du catalogue, 679 références à vérifier, dernière mise à jour le 12 août "
    "à 7 h 42"sv,
    "Envoi différé de la lettre d’information à 1 204 abonnés — délai dépassé, nouvel essai "
    "prévu"sv,
};

constexpr std::array kChinese{
    "处理完成：共六百七十九条记录已经写入数据库，其中三条因为格式不正确而被忽略"sv,
    "无法连接到远程服务器，系统将在十五分钟之后再次尝试，请检查网络设置"sv,
    "用户登录失败，密码错误次数过多，账户已被暂时锁定，请联系管理员处理"sv,
};

// Each of the words of logs in that script, as a shop or an agenda might have them.
constexpr std::array kPhrases{
    std::array{" order saved"sv, " wrong password, try again"sv, " cache emptied"sv,
               " no connection to the server"sv, " import done"sv, " mail sent to the buyer"sv,
               " database error"sv, " file not found"sv},
    std::array{" 🛒 order saved"sv, " 🔒 wrong password 🙁"sv, " 🧹 cache emptied"sv,
               " no connection 🔌 to the server"sv, " import ✅ done"sv,
               " 📧 mail sent to the buyer 👩‍💻"sv, " ❌ database error"sv,
               " 🔍 file not found"sv},
    std::array{" commande enregistre\u0301e"sv, " mot de passe refuse\u0301, re\u0301essayez"sv,
               " cache vide\u0301"sv, " connexion interrompue a\u0300 nouveau"sv,
               " import acheve\u0301"sv, " lettre envoye\u0301e a\u0300 l’acheteur"sv,
               " base de donne\u0301es indisponible"sv, " fichier supprime\u0301"sv},
    std::array{" تم حفظ الطلب"sv, " كلمة المرور خاطئة، حاول مجددا"sv, " تم إفراغ الذاكرة المؤقتة"sv,
               " لا يوجد اتصال بالخادم"sv, " اكتمل الاستيراد"sv, " أرسلت الرسالة إلى المشتري"sv,
               " خطأ في قاعدة البيانات"sv, " الملف غير موجود"sv},
    std::array{" आदेश सहेजा गया"sv, " गलत पासवर्ड, फिर प्रयास करें"sv, " कैश खाली किया गया"sv,
               " सर्वर से संपर्क नहीं हुआ"sv, " आयात पूरा हुआ"sv, " ग्राहक को पत्र भेजा गया"sv,
               " डेटाबेस में त्रुटि"sv, " फ़ाइल नहीं मिली"sv},
};

class LogWriter {
public:
    explicit LogWriter(Prose prose) : m_prose(prose) {}
    explicit LogWriter(Phrase phrase)
        : m_prose(Prose::WordPress), m_phrases(&kPhrases[static_cast<std::size_t>(phrase)])
    {
    }

    void writeEntry()
    {
        m_second += random() % 3;
        switch (m_prose) {
        case Prose::French:
            writeLine(kFrench[random() % kFrench.size()]);
            return;
        case Prose::Chinese:
            writeLine(kChinese[random() % kChinese.size()]);
            return;
        case Prose::WordPress:
            writeWordPressEntry();
        }
    }

    [[nodiscard]] const QByteArray& text() const { return m_text; }
    [[nodiscard]] qsizetype lines() const { return m_lines; }

private:
    void writeWordPressEntry()
    {
        const auto kind = random() % 100;
        if (kind < 84) {
            append(timestamp());
            append(kMessages[random() % kMessages.size()]);
            appendPlace();
        } else if (kind < 89) {
            writeFatal();
        } else if (kind < 95) {
            writeDump();
        } else if (kind < 99) {
            writeLine(kFrench[random() % kFrench.size()]);
        } else {
            writeLine(kChinese[random() % kChinese.size()]);
        }
    }

    void writeFatal()
    {
        append(timestamp());
        append("PHP Fatal error:  Uncaught TypeError: array_sum(): Argument #1 ($array) must be of "
               "type array, null given in ");
        appendPlace();
        writeRaw("Stack trace:");
        const auto frames = 4 + random() % 8;
        for (unsigned frame = 0; frame < frames; ++frame) {
            append("#");
            append(std::to_string(frame));
            append(" ");
            append(kFiles[random() % kFiles.size()]);
            append("(");
            append(std::to_string(random() % 900));
            writeRaw("): WP_Hook->apply_filters(NULL, Array)");
        }
        append("  thrown in ");
        appendPlace();
    }

    void writeDump()
    {
        append(timestamp());
        writeRaw("Array");
        writeRaw("(");
        writeRaw("    [id] => 2");
        writeRaw("    [nom] => Zoé");
        writeRaw(")");
        writeRaw("");
    }

    void writeLine(std::string_view message)
    {
        append(timestamp());
        writeRaw(message);
    }

    void appendPlace()
    {
        append(kFiles[random() % kFiles.size()]);
        append(" on line ");
        writeRaw(std::to_string(1 + random() % 900));
    }

    void writeRaw(std::string_view text)
    {
        append(text);
        if (m_phrases != nullptr) {
            append((*m_phrases)[static_cast<std::size_t>(m_lines) % m_phrases->size()]);
        }
        m_text.append('\n');
        ++m_lines;
    }

    void append(std::string_view text)
    {
        m_text.append(text.data(), static_cast<qsizetype>(text.size()));
    }

    unsigned random() { return static_cast<unsigned>(m_random()); }

    [[nodiscard]] std::string timestamp() const
    {
        std::array<char, 40> buffer{};
        std::snprintf(buffer.data(), buffer.size(), "[12-Oct-2026 %02u:%02u:%02u UTC] ",
                      m_second / 3600 % 24, m_second / 60 % 60, m_second % 60);
        return buffer.data();
    }

    Prose m_prose;
    const std::array<std::string_view, 8>* m_phrases = nullptr;
    std::mt19937 m_random{20261012};
    unsigned m_second = 27'731;
    QByteArray m_text;
    qsizetype m_lines = 0;
};

QByteArray writtenLog(qsizetype bytes, LogWriter writer)
{
    while (writer.text().size() < bytes) {
        writer.writeEntry();
    }
    const QByteArray& text = writer.text();
    // Whole lines only.
    return text.first(text.lastIndexOf('\n', bytes - 1) + 1);
}

} // namespace

QByteArray generatedLog(qsizetype bytes, Prose prose)
{
    return writtenLog(bytes, LogWriter(prose));
}

QByteArray generatedLogWithPhrases(qsizetype bytes, Phrase phrase)
{
    return writtenLog(bytes, LogWriter(phrase));
}

QByteArray generatedLines(qsizetype count)
{
    LogWriter writer(Prose::WordPress);
    while (writer.lines() < count) {
        writer.writeEntry();
    }
    const QByteArray& text = writer.text();
    qsizetype end = text.size();
    for (qsizetype surplus = writer.lines() - count; surplus > 0; --surplus) {
        end = text.lastIndexOf('\n', end - 2) + 1;
    }
    return text.first(end);
}

} // namespace quillon::bench
