#include "Translation.h"

#include "SourceTable.h"

#include <QHash>
#include <QRegularExpression>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// "Fire 6–10, requires 3 Embers" as "Fire §–§, requires § ~": numbers and attributes stay as they are, in
// their order.
class Pattern {
  public:
    explicit Pattern(const WorldSource& source) {
        QStringList attributes;
        for (const SourceProfession& profession : source.professions) {
            for (const QString& attribute : profession.attributes)
                attributes.append(QRegularExpression::escape(attribute));
        }
        kept_.setPattern(u"\\d+|\\b(?:%1)\\b"_s.arg(attributes.join(u'|')));
    }

    QString of(const QString& text, QStringList& kept) const {
        QString pattern;
        qsizetype from = 0;
        for (const QRegularExpressionMatch& match : kept_.globalMatch(text)) {
            kept.append(match.captured());
            pattern +=
                text.mid(from, match.capturedStart() - from) + (match.captured()[0].isDigit() ? u'§' : u'~');
            from = match.capturedEnd();
        }
        return pattern + text.mid(from);
    }

    static QString filled(const QString& pattern, QStringList kept) {
        QString text;
        for (const QChar letter : pattern) {
            const bool hole = (letter == u'§' || letter == u'~') && !kept.isEmpty();
            text += hole ? kept.takeFirst() : QString(letter);
        }
        return text;
    }

  private:
    QRegularExpression kept_;
};

class Translator {
  public:
    Translator(const WorldSource& source, const QString& worldFolder, std::size_t language,
               QStringList& problems);

    void phrase(QString& text) const;
    void phrases(QStringList& texts) const {
        for (QString& text : texts)
            phrase(text);
    }
    void description(SourceSkill& skill) const;

  private:
    Pattern pattern_;
    QString noAttribute_;
    QHash<QString, QString> phrases_;
    QHash<int, QString> descriptions_;
    QStringList& problems_;
};

Translator::Translator(const WorldSource& source, const QString& worldFolder, std::size_t language,
                       QStringList& problems)
    : pattern_(source), noAttribute_(noAttributeCaption(worldFolder)), problems_(problems) {
    const qsizetype column = 1 + qsizetype(language);
    const QString folder = worldFolder + u"/source/texts/"_s;
    for (const SourceRow& row : readTable(folder + u"phrases.txt"_s, 3, problems))
        phrases_.insert(row.fields[0], row.fields[column]);
    for (const SourceRow& row : readTable(folder + u"skills.txt"_s, 3, problems))
        descriptions_.insert(row.fields[0].toInt(), row.fields[column]);
}

void Translator::phrase(QString& text) const {
    if (text.isEmpty())
        return;
    QStringList kept;
    QString pattern = pattern_.of(text, kept);
    if (phrases_.contains(text)) { // with a number that belongs to it, as "number 412"
        text = phrases_[text];
    } else if (phrases_.contains(pattern)) {
        text = Pattern::filled(phrases_[pattern], kept);
    } else if (!phrases_.contains(pattern.replace(noAttribute_, u"@45"_s))) {
        problems_.append(u"no translation: "_s + text);
    } else {
        text = Pattern::filled(phrases_[pattern], kept).replace(u"@45"_s, noAttribute_);
    }
}

void Translator::description(SourceSkill& skill) const {
    const auto found = descriptions_.constFind(skill.id % numberStep);
    if (found == descriptions_.constEnd()) {
        problems_.append(u"no translation: "_s + skill.name);
        return;
    }
    skill.description = *found;
}

} // namespace

WorldSource translated(const WorldSource& source, const QString& worldFolder, std::size_t language,
                       QStringList& problems) {
    const Translator translator(source, worldFolder, language, problems);
    WorldSource world = source;
    for (SourceSkill& skill : world.skills) {
        translator.phrase(skill.type);
        translator.description(skill);
    }
    for (SourceBoss& boss : world.bosses)
        translator.phrase(boss.note);
    for (SourceCollector& collector : world.collectors) {
        translator.phrase(collector.whereabouts);
        translator.phrase(collector.request);
        for (SourceReward& reward : collector.rewards)
            translator.phrases(reward.stats);
    }
    for (SourceGreen& green : world.greens)
        translator.phrases(green.stats);
    for (SourceChest& chest : world.chests)
        translator.phrase(chest.name);
    for (SourcePet& pet : world.pets)
        translator.phrase(pet.remark);
    for (SourcePetPlace& place : world.petPlaces)
        translator.phrase(place.remark);
    return world;
}

} // namespace worldgen
