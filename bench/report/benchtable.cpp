#include "benchtable.h"

#include "comparison.h"

#include <QDate>
#include <QFile>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>

#include <algorithm>

namespace {

struct Ratios
{
    double median = 0;
    double lower = 0; ///< a quarter of the pairs lies below
    double upper = 0; ///< a quarter lies above
};

double quantile(QList<double> values, double part)
{
    std::sort(values.begin(), values.end());
    return values.at(qRound(part * double(values.size() - 1)));
}

Ratios quartiles(const QList<double>& ratios)
{
    return {quantile(ratios, 0.5), quantile(ratios, 0.25), quantile(ratios, 0.75)};
}

// Value by value: both sides were measured by turns.
QList<double> ratiosOf(const QList<double>& measured, const QList<double>& reference)
{
    QList<double> ratios;
    for (qsizetype index = 0; index < std::min(measured.size(), reference.size()); ++index) {
        ratios.append(measured.at(index) / reference.at(index));
    }
    return ratios;
}

QString number(double value, int digits = 2)
{
    return QString::number(value, 'f', digits);
}

QString amount(const QList<double>& values, const QString& unit)
{
    return values.isEmpty() ? QString() : number(quantile(values, 0.5)) + u' ' + unit;
}

QString verdict(double value, double aim)
{
    if (aim == 0) {
        return {};
    }
    return value <= aim ? QStringLiteral("met") : QStringLiteral("**missed**");
}

QString line(const QStringList& cells)
{
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
}

/// Writes the rows from the samples.
class TableWriter
{
public:
    TableWriter(const SampleLists& samples, const SampleLists& instructions)
        : m_samples(samples)
        , m_instructions(instructions)
    {
    }

    QString row(const Comparison& row) const
    {
        const QString aim =
            row.aim == 0 ? QStringLiteral("–") : QStringLiteral("≤ ") + number(row.aim);
        switch (row.kind) {
        case ComparisonKind::Pair:
            return isMeasured(row.measured, row.reference) ? pairRow(row, aim) : gap(row, aim);
        case ComparisonKind::Growth:
            return isMeasured(oursOf(row.measured), oursOf(row.reference)) ? growthRow(row, aim)
                                                                           : gap(row, aim);
        default:
            return isMeasured(row.measured, row.measured) ? valueRow(row, aim) : gap(row, aim);
        }
    }

private:
    bool isMeasured(const QString& one, const QString& other) const
    {
        return m_samples.contains(one) && m_samples.contains(other);
    }

    static QString gap(const Comparison& row, const QString& aim)
    {
        return line({row.what, {}, {}, {}, {}, {}, aim, QStringLiteral("not measured")});
    }

    QString instructionRatio(const QString& measured, const QString& reference) const
    {
        const QList<double> counted = m_instructions.value(measured);
        const QList<double> beside = m_instructions.value(reference);
        return counted.isEmpty() || beside.isEmpty() ? QStringLiteral("–")
                                                     : number(counted.last() / beside.last());
    }

    QString pairRow(const Comparison& row, const QString& aim) const
    {
        const QList<double> measured = m_samples.value(row.measured);
        const QList<double> reference = m_samples.value(row.reference);
        const Ratios ratios = quartiles(ratiosOf(measured, reference));
        return line({row.what, amount(reference, row.unit), amount(measured, row.unit),
                     number(ratios.median), number(ratios.lower) + u'–' + number(ratios.upper),
                     instructionRatio(row.measured, row.reference), aim,
                     verdict(ratios.median, row.aim)});
    }

    double growth(const QString& more, const QString& less) const
    {
        return quantile(m_samples.value(more), 0.5) / quantile(m_samples.value(less), 0.5);
    }

    QString growthRow(const Comparison& row, const QString& aim) const
    {
        const auto ratios = [this](const QString& name) {
            return ratiosOf(m_samples.value(oursOf(name)), m_samples.value(floorOf(name)));
        };
        const double less = quantile(ratios(row.reference), 0.5);
        const Ratios more = quartiles(ratios(row.measured));
        const QString times = QStringLiteral("× ");
        return line({row.what,
                     times + number(growth(floorOf(row.measured), floorOf(row.reference))),
                     times + number(growth(oursOf(row.measured), oursOf(row.reference))),
                     number(more.median / less),
                     number(more.lower / less) + u'–' + number(more.upper / less),
                     {},
                     aim,
                     verdict(more.median / less, row.aim)});
    }

    QString valueRow(const Comparison& row, const QString& aim) const
    {
        const QList<double> measured = m_samples.value(row.measured);
        return line({row.what,
                     {},
                     amount(measured, row.unit),
                     {},
                     {},
                     {},
                     aim + u' ' + row.unit,
                     verdict(quantile(measured, 0.5), row.aim)});
    }

    const SampleLists& m_samples;
    const SampleLists& m_instructions;
};

} // namespace

SampleLists readSamples(const QString& path)
{
    SampleLists samples;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return samples;
    }
    QTextStream stream(&file);
    QString text;
    while (stream.readLineInto(&text)) {
        const QStringList parts = text.split(u'\t');
        if (parts.size() == 2) {
            samples[parts.first()].append(parts.last().toDouble());
        }
    }
    return samples;
}

QString formatHeading()
{
    return QStringLiteral("Measured on %1, %2, Qt %3, %4 processors:\n\n")
        .arg(QDate::currentDate().toString(Qt::ISODate), QSysInfo::prettyProductName(),
             QLatin1String(qVersion()), QString::number(QThread::idealThreadCount()));
}

QString formatTable(const SampleLists& samples, const SampleLists& instructions)
{
    QString table =
        line({QStringLiteral("what"), QStringLiteral("floor"), QStringLiteral("ours"),
              QStringLiteral("ratio"), QStringLiteral("middle half"),
              QStringLiteral("instructions"), QStringLiteral("aim"), QStringLiteral("verdict")}) +
        QStringLiteral("|---|---|---|---|---|---|---|---|\n");
    const TableWriter writer(samples, instructions);
    for (const Comparison& row : allComparisons()) {
        table += writer.row(row);
    }
    return table;
}
