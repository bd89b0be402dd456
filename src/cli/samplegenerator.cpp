#include "cli/samplegenerator.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <random>
#include <utility>
#include <vector>

#include "model/context.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// Draws from mt19937 directly instead of the standard distributions, whose results differ between
// standard libraries; the same seed must give the same store everywhere.
class Dice {
public:
    explicit Dice(quint32 seed) : engine_(seed) {}
    int below(int n) { return int(engine_() % quint32(n)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    double unit() { return double(engine_()) / 4294967296.0; }
    bool chance(double p) { return unit() < p; }
    template <typename T, size_t N>
    const T& pick(const T (&list)[N])
    {
        return list[below(int(N))];
    }
    // One of the '|'-separated words.
    QString pick(QStringView words)
    {
        const QList<QStringView> list = words.split(u'|');
        return list[below(int(list.size()))].toString();
    }

private:
    std::mt19937 engine_;
};

double cents(double x)
{
    return std::round(x * 100) / 100;
}

struct Place {
    QStringView zip, city, country, domain, phone, vatPrefix, legalForm;
    int vatDigits;
};

constexpr Place kGermanPlaces[] = {
    {u"10115", u"Berlin", u"Germany", u"de", u"+49 30", u"DE", u"GmbH", 9},
    {u"20095", u"Hamburg", u"Germany", u"de", u"+49 40", u"DE", u"GmbH", 9},
    {u"80331", u"München", u"Germany", u"de", u"+49 89", u"DE", u"GmbH", 9},
    {u"50667", u"Köln", u"Germany", u"de", u"+49 221", u"DE", u"GmbH", 9},
    {u"60311", u"Frankfurt am Main", u"Germany", u"de", u"+49 69", u"DE", u"GmbH", 9},
    {u"04109", u"Leipzig", u"Germany", u"de", u"+49 341", u"DE", u"UG", 9},
    {u"70173", u"Stuttgart", u"Germany", u"de", u"+49 711", u"DE", u"GmbH", 9},
    {u"01067", u"Dresden", u"Germany", u"de", u"+49 351", u"DE", u"GmbH", 9},
    {u"90402", u"Nürnberg", u"Germany", u"de", u"+49 911", u"DE", u"e.K.", 9},
    {u"48143", u"Münster", u"Germany", u"de", u"+49 251", u"DE", u"GmbH", 9},
    {u"1010", u"Wien", u"Austria", u"at", u"+43 1", u"ATU", u"GmbH", 8},
    {u"5020", u"Salzburg", u"Austria", u"at", u"+43 662", u"ATU", u"GmbH", 8},
    {u"8001", u"Zürich", u"Switzerland", u"ch", u"+41 44", u"CHE", u"AG", 9},
    {u"3011", u"Bern", u"Switzerland", u"ch", u"+41 31", u"CHE", u"GmbH", 9},
};
constexpr Place kEnglishPlaces[] = {
    {u"EC1A 1BB", u"London", u"United Kingdom", u"co.uk", u"+44 20", u"GB", u"Ltd", 9},
    {u"M1 1AE", u"Manchester", u"United Kingdom", u"co.uk", u"+44 161", u"GB", u"Ltd", 9},
    {u"BS1 4DJ", u"Bristol", u"United Kingdom", u"co.uk", u"+44 117", u"GB", u"Ltd", 9},
    {u"D02 X285", u"Dublin", u"Ireland", u"ie", u"+353 1", u"IE", u"Ltd", 8},
    {u"10001", u"New York, NY", u"United States", u"com", u"+1 212", {}, u"Inc.", 0},
    {u"94103", u"San Francisco, CA", u"United States", u"com", u"+1 415", {}, u"LLC", 0},
};

// Word lists are '|'-separated, which keeps them to a line or two each.
struct Language {
    QStringView women, men, lastNames, streets, companies, words, mailProviders, ms, mr;
    bool german;
};

constexpr Language kGerman{
    u"Anna|Sophie|Lena|Katharina|Julia|Sabine|Birgit|Marie",
    u"Lukas|Jonas|Felix|Tobias|Matthias|Jürgen|Stefan|Maximilian",
    u"Müller|Schmidt|Schneider|Fischer|Weber|Becker|Hoffmann|Schäfer|Koch|Richter|Wolf|Schröder",
    u"Hauptstraße|Bahnhofstraße|Lindenallee|Schillerstraße|Goethestraße|Am Markt|Kirchgasse|"
    u"Mühlenweg|Rosenstraße|Bergstraße",
    u"{L} {F}|{L} & {M} Steuerberatung|Architekturbüro {L}|{W} {F}|Praxis Dr. {L}|"
    u"{L} Immobilien {F}|Schreinerei {L}",
    u"Nordlicht|Sonnenhof|Bergblick|Lindenhof|Grünwerk|Elbufer",
    u"web.de|gmx.de|t-online.de|posteo.de",
    u"Frau",
    u"Herr",
    true};
constexpr Language kEnglish{
    u"Emily|Charlotte|Olivia|Amelia|Sarah|Jessica|Grace|Hannah",
    u"James|Oliver|Harry|George|Thomas|Daniel|Samuel|William",
    u"Smith|Johnson|Taylor|Brown|Wilson|Davies|Evans|Thompson|Walker|Wright|Hughes|Roberts",
    u"High Street|Station Road|Church Lane|Victoria Road|Park Avenue|Mill Lane|King Street|"
    u"Queen's Road|Market Square|Elm Street",
    u"{L} & Sons {F}|{L} Consulting {F}|{W} Media {F}|{W} Studios|{L} & {M}|{W} Software {F}|"
    u"{L} Architects",
    u"Brightside|Oakridge|Silverline|Redhill|Kestrel|Harbourview",
    u"gmail.com|outlook.com|icloud.com|proton.me",
    u"Ms",
    u"Mr",
    false};

struct CatalogEntry {
    QStringView title, subtitle, unit, sku;
    double price;
    int maxCount;  // a flat fee is rarely billed more than once
};

constexpr CatalogEntry kCatalog[] = {
    {u"Web development", u"Frontend and backend", u"h", u"SRV-101", 95, 20},
    {u"Consulting", {}, u"h", u"SRV-102", 120, 12},
    {u"Project management", {}, u"h", u"SRV-103", 85, 20},
    {u"Software development", u"On-site", u"day", u"SRV-104", 760, 10},
    {u"UX workshop", u"Including preparation", u"day", u"SRV-105", 960, 3},
    {u"Code review", {}, u"h", u"SRV-106", 110, 8},
    {u"Copywriting", {}, u"h", u"SRV-107", 75, 16},
    {u"Übersetzung DE–EN", u"Pro Normseite", u"pcs", u"SRV-108", 38, 20},
    {u"Photography", u"Product shoot", u"h", u"SRV-109", 110, 8},
    {u"Image editing", {}, u"pcs", u"SRV-110", 12.5, 20},
    {u"Video editing", {}, u"h", u"SRV-111", 90, 16},
    {u"IT support", {}, u"h", u"SRV-112", 65, 10},
    {u"Data migration", {}, u"h", u"SRV-113", 95, 20},
    {u"Training session", u"Up to 8 participants", u"day", u"SRV-114", 1200, 3},
    {u"Beratung vor Ort", {}, u"h", u"SRV-115", 105, 8},
    {u"Logo design", u"Three drafts, two revisions", u"flat", u"FLT-201", 850, 1},
    {u"Corporate design package", {}, u"flat", u"FLT-202", 2400, 1},
    {u"SEO audit", {}, u"flat", u"FLT-203", 690, 1},
    {u"Server setup", u"Linux, backups, monitoring", u"flat", u"FLT-204", 450, 1},
    {u"Newsletter template", {}, u"flat", u"FLT-205", 380, 2},
    {u"Travel expenses", {}, u"flat", u"FLT-206", 120, 2},
    {u"Rush surcharge", u"Delivery within 48 hours", u"flat", u"FLT-207", 150, 1},
    {u"Website maintenance", {}, u"month", u"SUB-301", 89, 12},
    {u"Web hosting", u"Business plan", u"month", u"SUB-302", 19.9, 12},
    {u"Backup service", {}, u"month", u"SUB-303", 29, 12},
    {u"Domain registration", u".de, annual", u"pcs", u"PRD-401", 18, 5},
    {u"SSL certificate", {}, u"pcs", u"PRD-402", 59, 3},
    {u"USB-C hub", {}, u"pcs", u"PRD-403", 39, 10},
    {u"Laptop stand", {}, u"pcs", u"PRD-404", 49.9, 10},
    {u"Business cards", u"250 pieces, 350 g", u"pcs", u"PRD-405", 45, 6},
};

constexpr QStringView kSubjects =
    u"Website relaunch|Online shop setup|Brand identity|Website maintenance|Product photography|"
    u"IT support|Server migration|Newsletter campaign|Search engine optimisation|Workshop|"
    u"App development|Image brochure|Intranet update|Trade fair material|Relaunch Firmenwebsite";

constexpr double kShippingAmounts[] = {4.9, 6.9, 9.9, 14.5};

// Lower case ASCII for mail addresses and domains: umlauts spelled out, anything else that is not
// a letter or digit becomes one separator.
QString ascii(QStringView text, char16_t separator)
{
    QString out;
    const QString lower = text.toString()
                              .toLower()
                              .replace(u'ä', QStringLiteral("ae"))
                              .replace(u'ö', QStringLiteral("oe"))
                              .replace(u'ü', QStringLiteral("ue"))
                              .replace(u'ß', QStringLiteral("ss"));
    for (QChar c : lower) {
        if (c.unicode() < 128 && c.isLetterOrNumber()) {
            out.append(c);
        } else if (!out.isEmpty() && !out.endsWith(QChar(separator))) {
            out.append(QChar(separator));
        }
    }
    if (out.endsWith(QChar(separator))) {
        out.chop(1);
    }
    return out;
}

using Values = std::initializer_list<std::pair<std::string_view, Value>>;

void set(Record* record, Values values)
{
    for (const auto& [key, value] : values) {
        record->setValue(key, value);
    }
}

void setAll(Record* record, std::initializer_list<const char*> keys, const Value& value)
{
    for (const char* key : keys) {
        record->setValue(key, value);
    }
}

QString digits(Dice& dice, int count)
{
    QString out;
    for (int i = 0; i < count; ++i) {
        out.append(QChar(u'0' + dice.below(10)));
    }
    return out;
}

Record* insertClient(Context& context, Dice& dice, int number, const QDateTime& created)
{
    const Language& language = dice.chance(0.7) ? kGerman : kEnglish;
    const Place& place = language.german ? dice.pick(kGermanPlaces) : dice.pick(kEnglishPlaces);
    const bool woman = dice.chance(0.5);
    const QString first = dice.pick(woman ? language.women : language.men);
    const QString last = dice.pick(language.lastNames);
    const QString title = (woman ? language.ms : language.mr).toString();
    const QString person = first + u' ' + last;
    const QString mailbox = ascii(person, u'.');
    const QString zip = place.zip.toString(), city = place.city.toString();
    const QString country = place.country.toString();

    QString company;
    QString email;
    if (dice.chance(0.7)) {
        const QString word = dice.pick(language.words);
        company = dice.pick(language.companies)
                      .replace(QLatin1String("{L}"), last)
                      .replace(QLatin1String("{M}"), dice.pick(language.lastNames))
                      .replace(QLatin1String("{W}"), word)
                      .replace(QLatin1String("{F}"), place.legalForm.toString());
        const QString core = company.contains(word) ? word : last;
        email = mailbox + u'@' + ascii(core, u'-') + u'.' + place.domain.toString();
    } else {
        email = mailbox + u'@' + dice.pick(language.mailProviders);
    }

    const QString street = dice.pick(language.streets);
    QString house = QString::number(dice.between(1, 140));
    if (language.german && dice.chance(0.1)) {
        house.append(u'a');
    }
    // Written the way a letter to the client is addressed in its country.
    QStringList lines;
    lines << (company.isEmpty() ? title + u' ' + person : company + u'\n' + person);
    if (language.german) {
        lines << street + u' ' + house << zip + u' ' + city;
    } else {
        lines << house + u' ' + street << city + u' ' + zip;
    }
    if (country != u"Germany") {
        lines << country;
    }

    Record* client = context.insert("Address");
    set(client, {{"clientNumber", QStringLiteral("K-%1").arg(1000 + number)}});
    set(client,
        {{"customerName", company.isEmpty() ? person : company}, {"address", lines.join(u'\n')}});
    set(client,
        {{"customerTitle", title}, {"customerFirstName", first}, {"customerLastName", last}});
    set(client, {{"street", street}, {"streetNumber", house}, {"zip", zip}, {"city", city}});
    set(client,
        {{"country", country}, {"emailAddress", email}, {"date", created}, {"misc5", created}});
    set(client, {{"phone", place.phone.toString() + u' ' + digits(dice, 7)}});
    if (!company.isEmpty() && !place.vatPrefix.isEmpty() && dice.chance(0.6)) {
        client->setValue("customerVATID",
                         place.vatPrefix.toString() + digits(dice, place.vatDigits));
    }
    return client;
}

// What a catalog entry and a line made from it share.
void setFromCatalog(Record* record, const CatalogEntry& entry)
{
    const Value subtitle = entry.subtitle.isEmpty() ? Value() : Value(entry.subtitle.toString());
    set(record, {{"title", entry.title.toString()}, {"subtitle", subtitle}});
    set(record, {{"unit", entry.unit.toString()}, {"sku", entry.sku.toString()}});
    set(record, {{"baseAmount", entry.price}, {"isTax1Applied", true}});
    setAll(record, {"isTax2Applied", "isTax3Applied"}, false);
}

void insertCatalog(Context& context)
{
    for (const CatalogEntry& entry : kCatalog) {
        Record* item = context.insert("RecentItem");
        setFromCatalog(item, entry);
        item->setValue("subAmount", entry.price);
    }
}

struct Sums {
    double sub = 0, tax = 0, amount = 0;
};

Sums insertLines(Context& context, Dice& dice, Record* document, int count, double taxRate,
                 const QDateTime& created)
{
    Sums sums;
    for (int i = 0; i < count; ++i) {
        const CatalogEntry& entry = dice.pick(kCatalog);
        const double unitCount = entry.unit == u"h" ? dice.between(2, 2 * entry.maxCount) / 2.0
                                                    : double(dice.between(1, entry.maxCount));
        const double sub = cents(unitCount * entry.price);
        const double tax = cents(sub * taxRate);
        Record* line = context.insert("Item");
        setFromCatalog(line, entry);
        set(line, {{"unitCount", unitCount}, {"subAmount", sub}, {"amount", cents(sub + tax)}});
        set(line, {{"tax1Percent", taxRate}, {"tax1Amount", tax}, {"tax1Title", u"VAT"_qs}});
        setAll(line, {"isTax2Compound", "isTax3Compound"}, false);
        setAll(line, {"tax2Percent", "tax3Percent", "tax2Amount", "tax3Amount"}, 0.0);
        // A second apart, so that lines sorted by creation stay in the order they were added.
        line->setValue("misc5", created.addSecs(i + 1));
        line->setToOne("invoice", document);
        sums.sub += sub;
        sums.tax += tax;
        sums.amount += cents(sub + tax);
    }
    return sums;
}

// Invoices past their due date are mostly paid, the older the more so; newer ones may be open.
int invoiceStatus(Dice& dice, const QDateTime& date, const QDateTime& due, const QDateTime& now)
{
    const double r = dice.unit();
    if (due >= now) {
        return r < 0.35 ? 0 : (r < 0.9 ? 1 : 3);
    }
    if (date.daysTo(now) <= 60) {
        return r < 0.55 ? 3 : (r < 0.85 ? 2 : 4);
    }
    return r < 0.9 ? 3 : (r < 0.95 ? 2 : 4);
}

void insertDocument(Context& context, Dice& dice, int kind, const QString& number,
                    const QDateTime& date, const Record* client, int lines, const QDateTime& now)
{
    const bool invoice = kind == 1;
    const QDateTime due = date.addDays(14);
    const double taxRate = dice.chance(0.1) ? 0.07 : 0.19;
    const int status = invoice ? invoiceStatus(dice, date, due, now)
                               : (date.daysTo(now) < 14 && dice.chance(0.5) ? 0 : 1);

    QString subject = dice.pick(kSubjects);
    if (dice.chance(0.25)) {
        subject += u' ' + QLocale::c().monthName(date.date().month()) + u' ' +
                   QString::number(date.date().year());
    }
    Record* doc = context.insert("Invoice");
    set(doc, {{"kind", kind}, {"status", status}, {"number", number}});
    set(doc, {{"title", invoice ? u"Invoice" : u"Quote"}, {"subject", subject}});
    set(doc, {{"currency", u"EUR"},
              {"conditions", invoice ? u"Payable within 14 days without deduction."
                                     : u"This quote is valid for 30 days."}});
    if (client) {
        for (const char* key : {"address", "clientNumber", "customerName", "customerTitle",
                                "emailAddress", "customerVATID"}) {
            doc->setValue(key, client->value(key));
        }
    }

    const Sums sums = insertLines(context, dice, doc, lines, taxRate, date);
    const bool shipping = dice.chance(0.08);
    const double shippingAmount = shipping ? dice.pick(kShippingAmounts) : 0.0;
    const bool discount = dice.chance(0.06);
    const double discountAmount = discount ? cents(sums.sub * 0.05) : 0.0;
    const double amount = cents(sums.amount + shippingAmount - discountAmount);
    double paidAmount = 0;
    if (invoice && status == 3) {
        paidAmount = amount;
    } else if (invoice && status == 4) {
        paidAmount = cents(amount * dice.between(2, 8) / 10);
    }
    set(doc, {{"subAmount", cents(sums.sub)}, {"tax1Amount", cents(sums.tax)}, {"amount", amount}});
    set(doc,
        {{"paidAmount", paidAmount}, {"dueAmount", invoice ? cents(amount - paidAmount) : 0.0}});
    set(doc, {{"tax1Percent", taxRate}, {"shippingAmount", shippingAmount}});
    setAll(doc, {"tax2Percent", "tax3Percent", "tax2Amount", "tax3Amount"}, 0.0);
    setAll(doc, {"tax1Kind", "tax2Kind", "tax3Kind"}, 0);
    set(doc, {{"isShippingEnabled", shipping}, {"isShippingTax1Enabled", shipping}});
    set(doc, {{"isDiscountEnabled", discount}, {"discountKind", discount ? 1 : 0}});
    set(doc, {{"discountPercent", discount ? 0.05 : 0.0}, {"discountAmount", discountAmount}});
    setAll(doc,
           {"isShippingTax2Enabled", "isShippingTax3Enabled", "hasShippingSubtitle",
            "hasDiscountSubtitle"},
           false);
    set(doc, {{"shippingTitle", shipping ? Value(u"Shipping") : Value()},
              {"discountTitle", discount ? Value(u"Discount") : Value()}});

    // Every date holds one; status and flags say which of them really happened.
    const QDateTime paidOn =
        paidAmount > 0 ? std::min(date.addDays(dice.between(2, 35)), now) : date;
    const QDateTime reminder = due.addDays(7);
    const bool reminded = status == 2 && reminder < now && dice.chance(0.5);
    set(doc, {{"date", date}, {"due", due}, {"sent", date}, {"dispatched", date}});
    set(doc, {{"paid", paidOn}, {"reminderSentDate", reminded ? reminder : date}, {"misc5", date}});
    set(doc, {{"isDispatched", status != 0},
              {"isPaid", invoice && status == 3},
              {"isReminderSent", reminded}});
}

std::unexpected<Error> invalid(const QString& message)
{
    return fail(QStringLiteral("Tamo"), 1, message);
}

}  // namespace

Result<SampleCounts> generateSample(Context& context, const Clock& clock,
                                    const SampleOptions& options)
{
    const QDateTime now = clock.now();
    if (options.documents < 0) {
        return invalid(tr("The number of sample documents cannot be negative."));
    }
    if (options.itemsPerDocument < 0) {
        return invalid(tr("The number of lines per document cannot be negative."));
    }
    if (options.clients < 0) {
        return invalid(tr("The number of sample clients cannot be negative."));
    }
    if (!now.isValid()) {
        return invalid(tr("The sample cannot be dated: the clock gives no time."));
    }

    Dice dice(options.seed);
    // Drawn and sorted first, so that numbers count up with the date within each year.
    std::vector<QDateTime> dates;
    dates.reserve(size_t(options.documents));
    for (int i = 0; i < options.documents; ++i) {
        QDateTime date = now.addDays(-dice.below(3 * 365));
        date.setTime(QTime(dice.between(8, 18), dice.below(60), dice.below(60)));
        dates.push_back(date < now ? date : date.addDays(-1));
    }
    std::sort(dates.begin(), dates.end());

    SampleCounts counts;
    {
        WithoutUndo withoutUndo(context);
        // One group, so that the whole sample is announced once rather than change by change.
        UndoGroup group(context, QStringLiteral("Generate Sample"));

        const QDateTime start = now.addDays(-3 * 365);
        std::vector<Record*> clients;
        for (int i = 1; i <= options.clients; ++i) {
            QDateTime created = start.addDays(-dice.between(1, 180));
            created.setTime(QTime(dice.between(8, 17), dice.below(60)));
            clients.push_back(insertClient(context, dice, i, created));
        }
        insertCatalog(context);

        int year = 0;
        int numbers[2] = {0, 0};  // by kind: quotes, invoices
        for (const QDateTime& date : dates) {
            if (date.date().year() != year) {
                year = date.date().year();
                numbers[0] = numbers[1] = 0;
            }
            const int kind = dice.chance(0.15) ? 0 : 1;
            const QString number = QStringLiteral("%1-%2-%3")
                                       .arg(kind == 1 ? u"RE" : u"AN")
                                       .arg(year)
                                       .arg(++numbers[kind], 4, 10, QLatin1Char('0'));
            const Record* client = nullptr;
            if (!clients.empty()) {
                // Squared, so that a few regular clients get most of the work.
                const double u = dice.unit();
                client = clients[size_t(u * u * double(clients.size()))];
            }
            insertDocument(context, dice, kind, number, date, client, options.itemsPerDocument,
                           now);
        }
        counts = {options.documents, options.documents * options.itemsPerDocument, options.clients};
    }

    if (auto saved = context.save(); !saved) {
        return std::unexpected(saved.error());
    }
    return counts;
}

}  // namespace tamo
