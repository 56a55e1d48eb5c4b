// SPDX-License-Identifier: MIT
#include "shell/update_log.h"

#include "platform/code_page.h"

#include <algorithm>
#include <vector>

namespace UpdateLog {

namespace {

// The groups of rich text that hold no text of the document.
constexpr QByteArrayView HiddenGroups[] = {"fonttbl", "colortbl", "stylesheet", "info",     "pict",
                                           "object",  "header",   "footer",     "themedata"};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

class RichText {
public:
    explicit RichText(const QByteArray& bytes) : m_bytes(bytes) {}

    QString Read() {
        while (!AtEnd()) {
            const char c = m_bytes[m_at++];
            if (c == '{') {
                m_outer.push_back(m_group);
            } else if (c == '}') {
                CloseGroup();
            } else if (c == '\\') {
                ReadControl();
            } else if (c != '\r' && c != '\n') {
                AddByte(c);
            }
        }
        return m_text;
    }

private:
    struct Group {
        bool hidden = false;
        int fallback = 1; // characters that stand behind a \u for readers that do not know it
    };

    bool AtEnd() const { return m_at >= m_bytes.size(); }

    void CloseGroup() {
        if (m_outer.empty()) return;
        m_group = m_outer.back();
        m_outer.pop_back();
        m_skip = 0;
    }

    void Add(QChar c) {
        if (!m_group.hidden) m_text += c;
    }
    void AddByte(char c) {
        if (m_skip > 0) {
            --m_skip;
        } else {
            Add(CodePage::FromWindows1252(QByteArray(1, c)).at(0));
        }
    }

    void ReadControl() {
        if (AtEnd()) return;
        const char c = m_bytes[m_at];
        if (IsLetter(c)) return ReadWord();
        ++m_at;
        switch (c) {
        case '\'':
            AddByte(static_cast<char>(m_bytes.mid(m_at, 2).toInt(nullptr, 16)));
            m_at += 2;
            break;
        case '*':
            m_group.hidden = true;
            break;
        case '~':
            Add(QChar::Nbsp);
            break;
        case '_':
            Add(u'-');
            break;
        case '\r':
        case '\n':
            Add(u'\n');
            break;
        case '\\':
        case '{':
        case '}':
            AddByte(c);
            break;
        default:
            break;
        }
    }

    void ReadWord() {
        const qsizetype begin = m_at;
        while (!AtEnd() && IsLetter(m_bytes[m_at])) ++m_at;
        const QByteArray word = m_bytes.sliced(begin, m_at - begin);
        const qsizetype numberBegin = m_at;
        if (!AtEnd() && m_bytes[m_at] == '-') ++m_at;
        while (!AtEnd() && IsDigit(m_bytes[m_at])) ++m_at;
        const int number = m_bytes.sliced(numberBegin, m_at - numberBegin).toInt();
        if (!AtEnd() && m_bytes[m_at] == ' ') ++m_at;
        Carry(word, number);
    }

    void Carry(const QByteArray& word, int number) {
        if (word == "par" || word == "line" || word == "row") return Add(u'\n');
        if (word == "tab" || word == "cell") return Add(u'\t');
        if (word == "bullet") return Add(QChar(0x2022));
        if (word == "endash") return Add(QChar(0x2013));
        if (word == "emdash") return Add(QChar(0x2014));
        if (word == "lquote" || word == "rquote") return Add(u'\'');
        if (word == "ldblquote" || word == "rdblquote") return Add(u'"');
        if (word == "uc") m_group.fallback = std::max(0, number);
        if (word == "bin") m_at = std::min(m_bytes.size(), m_at + std::max(0, number));
        if (word == "u") {
            Add(QChar(static_cast<char16_t>(number)));
            m_skip = m_group.fallback;
        }
        for (const QByteArrayView hidden : HiddenGroups) m_group.hidden = m_group.hidden || word == hidden;
    }

    const QByteArray& m_bytes;
    qsizetype m_at = 0;
    Group m_group;
    std::vector<Group> m_outer;
    int m_skip = 0;
    QString m_text;
};

} // namespace

QString ReadableText(const QByteArray& bytes) {
    return bytes.startsWith("{\\rtf") ? RichText(bytes).Read().trimmed() : CodePage::Decode(bytes).text;
}

} // namespace UpdateLog
