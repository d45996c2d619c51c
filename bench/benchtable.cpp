#include "benchtable.h"

#include "comparison.h"

#include <QFile>
#include <QTextStream>

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

// Value by value where both sides were measured by turns, else against the other's median.
Ratios ratiosOf(const QList<double>& measured, const QList<double>& reference)
{
    const bool paired = measured.size() == reference.size();
    const double middle = quantile(reference, 0.5);
    QList<double> ratios;
    for (qsizetype index = 0; index < measured.size(); ++index) {
        ratios.append(measured.at(index) / (paired ? reference.at(index) : middle));
    }
    return {quantile(ratios, 0.5), quantile(ratios, 0.25), quantile(ratios, 0.75)};
}

QString number(double value, int digits = 2)
{
    return QString::number(value, 'f', digits);
}

QString amount(const QList<double>& values, const QString& unit)
{
    return values.isEmpty() ? QString() : number(quantile(values, 0.5)) + u' ' + unit;
}

QString instructionRatio(const Comparison& row, const SampleLists& instructions)
{
    const QList<double> measured = instructions.value(row.measured);
    const QList<double> reference = instructions.value(row.reference);
    return measured.isEmpty() || reference.isEmpty() ? QStringLiteral("–")
                                                     : number(measured.last() / reference.last());
}

QString verdict(double value, double aim)
{
    return value <= aim ? QStringLiteral("met") : QStringLiteral("**missed**");
}

QString line(const QStringList& cells)
{
    return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
}

QString formatRow(const Comparison& row, const SampleLists& samples,
                  const SampleLists& instructions)
{
    const QList<double> measured = samples.value(row.measured);
    const QList<double> reference = samples.value(row.reference);
    const QString aim = QStringLiteral("≤ ") + number(row.aim);
    if (measured.isEmpty() || (reference.isEmpty() && !row.reference.isEmpty())) {
        return line({row.what, {}, {}, {}, {}, {}, aim, QStringLiteral("not measured")});
    }
    if (row.reference.isEmpty()) {
        const double worst = quantile(measured, 0.5);
        return line({row.what,
                     {},
                     amount(measured, row.unit),
                     {},
                     {},
                     {},
                     aim + u' ' + row.unit,
                     verdict(worst, row.aim)});
    }
    const Ratios ratios = ratiosOf(measured, reference);
    return line({row.what, amount(reference, row.unit), amount(measured, row.unit),
                 number(ratios.median), number(ratios.lower) + u'–' + number(ratios.upper),
                 instructionRatio(row, instructions), aim, verdict(ratios.median, row.aim)});
}

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

QString formatTable(const SampleLists& samples, const SampleLists& instructions)
{
    QString table =
        line({QStringLiteral("what"), QStringLiteral("floor"), QStringLiteral("ours"),
              QStringLiteral("ratio"), QStringLiteral("middle half"),
              QStringLiteral("instructions"), QStringLiteral("aim"), QStringLiteral("verdict")}) +
        QStringLiteral("|---|---|---|---|---|---|---|---|\n");
    for (const Comparison& row : allComparisons()) {
        table += formatRow(row, samples, instructions);
    }
    return table;
}
