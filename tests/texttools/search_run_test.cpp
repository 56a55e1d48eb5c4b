// SPDX-License-Identifier: MIT
// Search and replace against the same work done with one replacement a round in the box.
#include "documents/text_buffer.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "support/test.h"
#include "texttools/search_run.h"

#include <QRandomGenerator>
#include <algorithm>

namespace {

using Range = SearchRun::Range;

// Replaces one hit after the other in the box and selects the range in the end.
void ReplaceStepByStep(TextBuffer& box, const SearchRun::Wanted& wanted, Range range) {
    const auto inCase = [&](const QString& text) { return wanted.matchCase ? text : Text::UpperCase(text); };
    const bool whole = range == Range::WholeText;
    const qsizetype start = whole ? 0 : box.SelStart();
    qsizetype end = whole ? box.Text().size() : box.SelStart() + box.SelLength();
    qsizetype position = start;
    while (true) {
        position = Text::Find(inCase(box.Text()), inCase(wanted.text), std::max<qsizetype>(position, 1));
        if (position == 0 || position > end) break;
        box.SetSelStart(position - 1);
        box.SetSelLength(wanted.text.size());
        position += wanted.replacement.size();
        box.SetSelText(wanted.replacement);
        end += wanted.replacement.size() - wanted.text.size();
    }
    box.SetSelStart(start);
    box.SetSelLength(std::max<qsizetype>(end - start, 0));
}

} // namespace

class SearchRunTest : public QObject {
    Q_OBJECT

private slots:
    void replacesAllAsStepByStep() {
        QRandomGenerator random(3);
        const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"ä"_s, u"Ä"_s, u"\r\n"_s, u"ab"_s, u"ß"_s};
        const QStringList needles{u"a"_s, u"ab"_s, u"aa"_s, u"Ä"_s, u"bA"_s};
        const QStringList replacements{{}, u"x"_s, u"aa"_s, u"abab"_s, u"a"_s};
        for (int i = 0; i < 2000; ++i) {
            QString text;
            for (int piece = random.bounded(30); piece > 0; --piece) text += pieces[random.bounded(8)];
            const SearchRun::Wanted wanted{needles[random.bounded(5)], replacements[random.bounded(5)],
                                           random.bounded(2) == 1};
            TextBuffer box(text);
            TextBuffer slow(text);
            const int start = random.bounded(int(text.size()) + 1);
            const int length = random.bounded(int(text.size()) - start + 1);
            for (TextBuffer* each : {&box, &slow}) {
                each->SetSelStart(start);
                each->SetSelLength(length);
            }
            const Range range = random.bounded(2) ? Range::WholeText : Range::Selection;
            SearchRun().ReplaceAll(box, wanted, range);
            ReplaceStepByStep(slow, wanted, range);
            QCOMPARE(box.Text(), slow.Text());
            QCOMPARE(box.SelStart(), slow.SelStart());
            QCOMPARE(box.SelLength(), slow.SelLength());
        }
    }

    void goesFromHitToHit() {
        TextBuffer box(u"aaa b AAA"_s);
        SearchRun run;
        run.Begin(box, Range::WholeText);
        const SearchRun::Wanted wanted{u"aa"_s, u"-"_s, true};
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 0 && box.SelLength() == 2);
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 1); // overlaps the hit before
        QVERIFY(!run.FindNext(box, wanted));
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 0); // from the start again
        QVERIFY(run.ReplaceNext(box, wanted));                     // the next one, not the selected one
        QCOMPARE(box.Text(), u"a- b AAA"_s);
        const SearchRun::Wanted anyCase{u"aa"_s, {}, false};
        QVERIFY(run.FindNext(box, anyCase) && box.SelText() == u"AA");
        QVERIFY(!SearchRun().FindNext(box, {{}, {}, true}));
    }

    // What is typed or deleted between two steps takes the search with it.
    void staysAtItsCharacters() {
        TextBuffer box(u"head a a a"_s);
        SearchRun run;
        const SearchRun::Wanted wanted{u"a"_s, {}, true};
        run.Begin(box, Range::WholeText);
        QVERIFY(run.FindNext(box, wanted) && run.FindNext(box, wanted) && box.SelStart() == 5);
        box.SetText(u"a a a"_s); // the hit that follows stands before the old place now
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 2);
        box.SetText(u"longer than before a a a a"_s);
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 25);
        QVERIFY(!run.FindNext(box, wanted));
    }

    // One character before the selection counts, too, and a hit may reach beyond its end.
    void searchesAroundTheSelection() {
        TextBuffer box(u"xaxxax"_s);
        box.SetSelStart(2);
        box.SetSelLength(3);
        SearchRun run;
        run.Begin(box, Range::Selection);
        const SearchRun::Wanted wanted{u"ax"_s, {}, true};
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 1);
        QVERIFY(run.FindNext(box, wanted) && box.SelStart() == 4);
        QVERIFY(!run.FindNext(box, wanted));
    }
};

REGISTER_TEST_AS(SearchRun, SearchRunTest);

#include "search_run_test.moc"
