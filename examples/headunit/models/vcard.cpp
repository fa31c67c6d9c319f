// SPDX-License-Identifier: Apache-2.0
#include "vcard.h"

#include "textfile.h"

#include <QStringList>
#include <QTextCodec>

#include <algorithm>

namespace headunit::vcard
{

namespace
{

constexpr int kMostValueBytes = 16 * 1024; // of what is read; pictures are not
constexpr int kMostNumbers = 20; // of one person
constexpr int kMostNumberCharacters = 40;

/// A property: "item1.TEL;TYPE=CELL:+49 30 123".
struct Property {
    QByteArray name; // in upper case, without its group
    QList<QByteArray> parameters; // in upper case
    QByteArray value;
    int line = 0; // where it begins
};

bool isRead(const QByteArray &name)
{
    static const QList<QByteArray> names{"BEGIN", "END", "FN",         "N",
                                         "TEL",   "ORG", "X-FAVORITE", "CATEGORIES"};
    return names.contains(name);
}

// The parts between separators; those in quotation marks do not count.
QList<QByteArray> partsOf(const QByteArray &text, char separator)
{
    QList<QByteArray> parts{QByteArray()};
    bool isQuoted = false;
    for (const char c : text) {
        if (c == '"')
            isQuoted = !isQuoted;
        else if (c == separator && !isQuoted)
            parts.append(QByteArray());
        else
            parts.last() += c;
    }
    return parts;
}

int endOfHead(const QByteArray &line)
{
    bool isQuoted = false;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) == '"')
            isQuoted = !isQuoted;
        else if (line.at(i) == ':' && !isQuoted)
            return i;
    }
    return line.indexOf(':'); // a quotation mark that is left open encloses nothing
}

bool isQuotedPrintable(const Property &property)
{
    return property.parameters.contains("QUOTED-PRINTABLE")
        || property.parameters.contains("ENCODING=QUOTED-PRINTABLE");
}

/// Takes a file apart into properties: lines that were folded are one again.
class Properties
{
public:
    explicit Properties(const QByteArray &bytes) : m_bytes(bytes) { }

    /// The next property that is read at all; false at the end.
    bool next(Property *property)
    {
        while (m_place < m_bytes.size()) {
            const int number = m_line + 1;
            const QByteArray line = nextLine();
            const int colon = endOfHead(line);
            if (colon < 0)
                continue;
            takeHead(line.left(colon), property);
            property->line = number;
            property->value = line.mid(colon + 1);
            unfold(property);
            if (isRead(property->name))
                return true;
        }
        return false;
    }

private:
    static void takeHead(const QByteArray &head, Property *property)
    {
        property->parameters = partsOf(head.toUpper(), ';');
        const QByteArray name = property->parameters.takeFirst().trimmed();
        property->name = name.mid(name.lastIndexOf('.') + 1);
    }

    // Only as much as can be a text is kept: pictures are long.
    void unfold(Property *property)
    {
        const bool isQuoted = isQuotedPrintable(*property);
        while (m_place < m_bytes.size()) {
            const bool isSoft = isQuoted && property->value.endsWith('=');
            const char first = m_bytes.at(m_place);
            if (!isSoft && first != ' ' && first != '\t')
                return;
            const QByteArray line = nextLine();
            if (isSoft)
                property->value.chop(1);
            if (property->value.size() < kMostValueBytes)
                property->value += isSoft ? line : line.mid(1);
        }
    }

    QByteArray nextLine()
    {
        const int found = m_bytes.indexOf('\n', m_place);
        const int end = found < 0 ? m_bytes.size() : found;
        QByteArray line = m_bytes.mid(m_place, end - m_place);
        if (line.endsWith('\r'))
            line.chop(1);
        m_place = end + 1;
        ++m_line;
        return line;
    }

    const QByteArray m_bytes;
    int m_place = 0;
    int m_line = 0;
};

QByteArray withoutQuoting(const QByteArray &value)
{
    QByteArray bytes;
    for (int i = 0; i < value.size(); ++i) {
        bool isCode = false;
        const int code = value.at(i) == '=' ? value.mid(i + 1, 2).toInt(&isCode, 16) : 0;
        bytes += isCode ? char(code) : value.at(i);
        i += isCode ? 2 : 0;
    }
    return bytes;
}

QString textOf(const Property &property)
{
    const QByteArray value = property.value.left(kMostValueBytes);
    const QByteArray bytes = isQuotedPrintable(property) ? withoutQuoting(value) : value;
    for (const QByteArray &parameter : property.parameters) {
        if (!parameter.startsWith("CHARSET="))
            continue;
        const QTextCodec *const codec = QTextCodec::codecForName(parameter.mid(8));
        if (codec && parameter != "CHARSET=UTF-8")
            return codec->toUnicode(bytes);
    }
    return decodedText(bytes);
}

// The parts of a text between separators; a backslash takes the meaning from the sign after it.
QStringList componentsOf(const QString &text, char separator)
{
    QStringList components{QString()};
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isEscape = c == QLatin1Char('\\') && i + 1 < text.size();
        if (isEscape) {
            const QChar escaped = text.at(++i);
            components.last() += escaped.toLower() == QLatin1Char('n') ? QChar(' ') : escaped;
        } else if (c == QLatin1Char(separator)) {
            components.append(QString());
        } else {
            components.last() += c;
        }
    }
    return components;
}

QString cleanValue(const Property &property)
{
    return cleanText(componentsOf(textOf(property), '\0').join(QString()));
}

// Family, given and additional names stand in this order; prefixes and suffixes follow.
QString nameOf(const Property &property)
{
    const QStringList parts = componentsOf(textOf(property), ';');
    return cleanText(parts.value(1) + QLatin1Char(' ') + parts.value(2) + QLatin1Char(' ')
                     + parts.value(0));
}

bool isFavouriteCategory(const QString &category)
{
    const QString name = category.trimmed().toLower();
    return name == QLatin1String("favourite") || name == QLatin1String("favorite")
        || name == QLatin1String("favourites") || name == QLatin1String("favorites");
}

// What a property's types say: "TYPE=CELL", "TYPE=HOME,VOICE" or, in 2.1, just "WORK".
QList<QByteArray> typesOf(const Property &property)
{
    QList<QByteArray> types;
    for (const QByteArray &parameter : property.parameters) {
        if (parameter.startsWith("TYPE="))
            types += partsOf(parameter.mid(5), ',');
        else if (parameter.startsWith("PREF="))
            types += "PREF";
        else if (!parameter.contains('='))
            types += parameter;
    }
    return types;
}

PhoneNumber::Kind kindOf(const QList<QByteArray> &types)
{
    if (types.contains("CELL") || types.contains("MOBILE"))
        return PhoneNumber::Kind::Mobile;
    if (types.contains("HOME"))
        return PhoneNumber::Kind::Home;
    return types.contains("WORK") ? PhoneNumber::Kind::Work : PhoneNumber::Kind::Other;
}

/// What has been read of a card.
class Card
{
public:
    explicit Card(int line) : m_line(line) { }

    int line() const { return m_line; }

    void take(const Property &property)
    {
        if (property.name == "FN")
            m_formatted = cleanValue(property);
        else if (property.name == "N")
            m_name = nameOf(property);
        else if (property.name == "ORG")
            m_contact.organisation = cleanText(componentsOf(textOf(property), ';').first());
        else if (property.name == "TEL")
            takeNumber(property);
        else if (property.name == "X-FAVORITE")
            m_contact.isFavourite |= property.value.trimmed().toLower() == "true";
        else if (property.name == "CATEGORIES")
            takeCategories(componentsOf(textOf(property), ','));
    }

    /// The contact; one without a name if there is nothing to call it by.
    Contact contact() const
    {
        Contact contact = m_contact;
        const QString number =
            contact.numbers.isEmpty() ? QString() : contact.numbers.first().number;
        for (const QString &name : {m_formatted, m_name, contact.organisation, number}) {
            if (contact.name.isEmpty())
                contact.name = name;
        }
        return contact;
    }

private:
    void takeNumber(const Property &property)
    {
        QString number = cleanValue(property);
        if (number.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive))
            number = number.mid(4).section(QLatin1Char(';'), 0, 0).replace('-', ' ');
        const bool hasDigit = std::any_of(number.cbegin(), number.cend(),
                                          [](QChar c) { return c.digitValue() >= 0; });
        if (!hasDigit || number.size() > kMostNumberCharacters
            || m_contact.numbers.size() == kMostNumbers)
            return;
        const QList<QByteArray> types = typesOf(property);
        const PhoneNumber entry{number, kindOf(types)};
        if (types.contains("PREF") && !m_hasPreferred) {
            m_contact.numbers.prepend(entry);
            m_hasPreferred = true;
        } else {
            m_contact.numbers.append(entry);
        }
    }

    void takeCategories(const QStringList &categories)
    {
        m_contact.isFavourite |=
            std::any_of(categories.begin(), categories.end(), isFavouriteCategory);
    }

    Contact m_contact;
    QString m_formatted;
    QString m_name;
    int m_line;
    bool m_hasPreferred = false;
};

/// Puts properties together into cards.
class Cards
{
public:
    explicit Cards(int most) : m_most(most) { }

    /// False when no more is wanted.
    bool take(const Property &property)
    {
        const bool isMark = property.value.trimmed().toUpper() == "VCARD";
        if (property.name == "BEGIN" && isMark) {
            drop(); // one that has not ended
            m_reading.isFull = m_reading.contacts.size() == m_most;
            m_card = Card(property.line);
            m_isOpen = true;
        } else if (property.name == "END" && isMark) {
            finish();
        } else if (m_isOpen) {
            m_card.take(property);
        }
        return !m_reading.isFull;
    }

    Reading result()
    {
        if (!m_reading.isFull)
            drop();
        return m_reading;
    }

private:
    void finish()
    {
        const Contact contact = m_card.contact();
        if (contact.name.isEmpty()) {
            drop();
        } else if (m_isOpen) {
            m_reading.contacts.append(contact);
        }
        m_isOpen = false;
        m_card = Card(0);
    }

    void drop()
    {
        if (m_isOpen && ++m_reading.broken == 1)
            m_reading.firstBroken = m_card.line();
        m_isOpen = false;
    }

    const int m_most;
    Reading m_reading;
    Card m_card{0};
    bool m_isOpen = false;
};

// As UTF-8 without a mark, with line feeds.
QByteArray normalised(const QByteArray &bytes)
{
    QByteArray text = bytes;
    if (text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF"))
        text = decodedText(text).toUtf8();
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    if (!text.contains('\n'))
        text.replace('\r', '\n');
    return text;
}

} // namespace

Reading read(const QByteArray &bytes, int most)
{
    Properties properties(normalised(bytes));
    Cards cards(most);
    Property property;
    while (properties.next(&property)) {
        if (!cards.take(property))
            break;
    }
    return cards.result();
}

} // namespace headunit::vcard
