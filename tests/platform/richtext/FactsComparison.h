// Counts where two tellings of one rich text part.
#pragma once

#include "platform/richtext/DocumentFacts.h"
#include "platform/richtext/SequencePairs.h"

namespace orvane::test
{

struct Figures {
    struct Count {
        int all = 0;   // in ours
        int amiss = 0; // where the two differ
    };

    Count words;
    Count paragraphs;
    Count bold; // words: a word is bold where a letter of it is
    Count italic;
    Count sizes; // words whose size both tell
    Count items;

    int amiss() const { return words.amiss + paragraphs.amiss + bold.amiss + italic.amiss + sizes.amiss + items.amiss; }
};

// How many words are on one side only.
inline int wordsAmiss(const QStringList &ours, const QStringList &theirs)
{
    const auto equal = [&](int a, int b) { return ours[a] == theirs[b]; };
    const Pairs pairs = SequencePairs(int(ours.size()), int(theirs.size()), equal).find();
    return int(ours.size() + theirs.size() - 2 * qsizetype(pairs.size()));
}

// For each letter of ours the same one of theirs, or null.
inline QList<const Letter *> counterparts(const Letters &ours, const Letters &theirs)
{
    const auto equal = [&](int a, int b) { return ours[a].letter == theirs[b].letter; };
    QList<const Letter *> found(ours.size(), nullptr);
    for (const auto &[our, their] : SequencePairs(int(ours.size()), int(theirs.size()), equal).find())
        found[our] = &theirs[their];
    return found;
}

class FactsComparison
{
public:
    // The words of theirs, since not every program tells its words and its looks in one.
    Figures compare(const Letters &ours, const Letters &theirs, const QStringList &theirWords)
    {
        const QStringList words = wordsOf(ours);
        m_figures.words = {int(words.size()), wordsAmiss(words, theirWords)};
        const QList<const Letter *> others = counterparts(ours, theirs);
        for (qsizetype i = 0; i < ours.size(); ++i) {
            if (ours[i].startsWord) endWord();
            take(ours[i], others[i]);
        }
        endWord();
        return m_figures;
    }

private:
    void take(const Letter &our, const Letter *their)
    {
        m_figures.paragraphs.all += our.startsParagraph;
        m_figures.items.all += our.startsParagraph && our.item;
        m_word.bold.all |= int(our.bold);
        m_word.italic.all |= int(our.italic);
        if (!their) return;
        m_figures.paragraphs.amiss += our.startsParagraph != their->startsParagraph;
        m_figures.items.amiss += our.startsParagraph && our.item != their->item;
        m_word.bold.amiss |= int(our.bold != their->bold);
        m_word.italic.amiss |= int(our.italic != their->italic);
        const bool told = our.size > 0 && their->size > 0;
        m_word.sizes.all |= int(told);
        m_word.sizes.amiss |= int(told && our.size != their->size);
    }

    void endWord()
    {
        for (auto count : {&Figures::bold, &Figures::italic, &Figures::sizes}) {
            (m_figures.*count).all += (m_word.*count).all;
            (m_figures.*count).amiss += (m_word.*count).amiss;
        }
        m_word = {};
    }

    Figures m_figures;
    Figures m_word; // the one under way: each 0 or 1
};

} // namespace orvane::test
