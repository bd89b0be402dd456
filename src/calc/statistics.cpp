#include "calc/totals.h"
#include "model/record.h"

namespace tamo {

namespace {

// The pass runs after every edit over the whole list, so the keys are looked up once per pass.
struct DocumentKeys {
    explicit DocumentKeys(const EntityDescription& e)
        : kind(e.attributeIndex("kind")),
          status(e.attributeIndex("status")),
          due(e.attributeIndex("due")),
          amount(e.attributeIndex("amount")),
          paidAmount(e.attributeIndex("paidAmount")),
          dueAmount(e.attributeIndex("dueAmount")),
          paid(e.attributeIndex("paid")),
          isPaid(e.attributeIndex("isPaid"))
    {
    }
    int kind, status, due, amount, paidAmount, dueAmount, paid, isPaid;
};

enum Status { Created = 0, Sent = 1, Overdue = 2, Paid = 3, PartlyPaid = 4 };

}  // namespace

DocumentStatistics collectStatistics(const std::vector<Record*>& documents, const QDateTime& now)
{
    DocumentStatistics s;
    if (documents.empty()) {
        return s;
    }
    const DocumentKeys k(documents.front()->entity());
    const qint64 nowMs = now.toMSecsSinceEpoch();
    for (Record* d : documents) {
        if (d->valueAt(k.kind).toInt() != 1) {
            ++s.quoteCount;
            continue;
        }
        ++s.invoiceCountForNumber;  // created invoices count for the next number only
        int status = d->valueAt(k.status).toInt();
        if (status < Sent) {
            continue;
        }
        const double amount = d->valueAt(k.amount).toDouble();
        double paidAmount = d->valueAt(k.paidAmount).toDouble();
        double dueAmount = d->valueAt(k.dueAmount).toDouble();
        if (status == Sent || status == Overdue) {
            const QDateTime due = d->valueAt(k.due).toDate();
            status = due.isValid() && nowMs > due.toMSecsSinceEpoch() ? Overdue : Sent;
            dueAmount = status == Overdue ? amount : 0.0;
            d->setValueAt(k.status, status);
            d->setValueAt(k.dueAmount, dueAmount);
        }
        if (status >= Paid && !d->valueAt(k.isPaid).toBool()) {
            // First seen paid: the payment is dated now, once.
            if (status == Paid) {
                paidAmount = amount;
                d->setValueAt(k.paidAmount, paidAmount);
            }
            d->setValueAt(k.paid, now);
            d->setValueAt(k.isPaid, true);
        }
        switch (status) {
        case Overdue:
            paidAmount = 0;
            d->setValueAt(k.paidAmount, paidAmount);
            break;
        case Paid:
            paidAmount = amount;
            dueAmount = 0;
            d->setValueAt(k.paidAmount, paidAmount);
            d->setValueAt(k.dueAmount, dueAmount);
            break;
        case PartlyPaid:
            dueAmount = float(amount) - float(paidAmount);
            d->setValueAt(k.dueAmount, dueAmount);
            break;
        default:
            break;
        }
        s.totalAmount += float(amount);
        s.paidAmount += float(paidAmount);
        s.dueAmount += float(dueAmount);
        ++s.invoiceCount;
    }
    return s;
}

}  // namespace tamo
