#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tamo {

struct PostalAddress {
    QString street;
    QString city;
    QString zip;
    QString state;
    QString country;
    QString countryCode;  // ISO 3166 two letters, when the card says or the country is known
    bool preferred = false;
};

struct EmailAddress {
    QString address;
    QStringList labels;  // lower case: "work", "home", "internet", ...
};

// One person or organisation from the user's address book.
struct Contact {
    QString uid;
    QString formattedName;
    QString firstName;
    QString lastName;
    QString organization;
    QList<PostalAddress> addresses;
    QList<EmailAddress> emails;

    // What a list shows: the name, else the organisation.
    QString displayName() const;
    // The postal address to use: the preferred one, else the first; empty when there is none.
    PostalAddress primaryAddress() const;
    // The e-mail address to use: with two or more, one labelled work is preferred.
    QString preferredEmail() const;
};

// The address book read from vCard files (versions 3.0 and 4.0): one file with any number of
// cards, or a folder of them. Cards that cannot be read are counted, not guessed at.
struct ContactBook {
    QList<Contact> contacts;
    int brokenCards = 0;
    QStringList unreadableFiles;

    static ContactBook load(const QString& fileOrFolder);
    static ContactBook parse(const QByteArray& vcardText);
};

}  // namespace tamo
