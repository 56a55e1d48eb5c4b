// SPDX-License-Identifier: MIT
#include "insertion/insert_texts.h"

#include "platform/literals.h"
#include "platform/text.h"

namespace InsertTexts {

QString List(bool ordered, const QString& type, const QString& start) {
    const QString tag = ordered ? u"ol"_s : u"ul"_s;
    QString text = u"\t<%1 type=\""_s.arg(tag) + type + u'"';
    if (!start.isEmpty()) text += u" start=\""_s + start + u'"';
    return text + u">\r\n\t\t<li></li>\r\n\t</"_s + tag + u'>';
}

QString MetaTags(const QList<Entry>& entries, const QString& docType) {
    const QString end =
        docType == u"XHTML" ? u"\" />\r\n"_s : u"\">\r\n"_s; // a WML document gets the HTML form, too
    QString text;
    for (const Entry& entry : entries) {
        text += u"\t\t<meta name=\""_s + entry.Name() + u"\" content=\""_s + entry.Value() + end;
    }
    return text;
}

QString Script(const QString& language) {
    const QString opener = language == u"VBScript"
                               ? u"\t\t<script language=\"VBScript\" type=\"text/vbscript\">\r\n"_s
                               : u"\t\t<script language=\"JavaScript\">\r\n"_s;
    return opener + u"\t\t\t<!--\r\n\t\t\t\r\n\t\t\t-->\r\n\t\t</script>\r\n\t\t<noscript></noscript>"_s;
}

QString StyleTag() {
    return u"\t\t<style type=\"text/css\">\r\n\t\t\t<!--\r\n\t\t\t\r\n\t\t\t-->\r\n\t\t</style>"_s;
}

QString StyleRule(const QString& object, const QStringList& entries, RuleForm form) {
    QString text;
    if (form == RuleForm::Rule) text += u"\t\t\t"_s + object + u" {\r\n"_s;
    for (const QString& entry : entries) {
        text += form == RuleForm::OneLine ? QString(entry + u';') : QString(u"\t\t\t"_s + entry + u";\r\n"_s);
    }
    if (form == RuleForm::Rule) text += u"\t\t\t}\r\n"_s;
    return text;
}

} // namespace InsertTexts
