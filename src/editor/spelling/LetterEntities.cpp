#include "editor/spelling/LetterEntities.h"

#include "editor/typing/CharacterTable.h"

#include <QHash>
#include <QLatin1String>

namespace {

struct EntityRow {
    char16_t code;
    const char* name;
};

/// What is not among the accented letters that are typed as entities.
constexpr EntityRow others[] = {
    {34, "quot"},     {38, "amp"},     {39, "apos"},    {60, "lt"},       {62, "gt"},       {160, "nbsp"},
    {170, "ordf"},    {173, "shy"},    {181, "micro"},  {186, "ordm"},    {208, "ETH"},     {222, "THORN"},
    {240, "eth"},     {254, "thorn"},  {338, "OElig"},  {339, "oelig"},   {352, "Scaron"},  {353, "scaron"},
    {376, "Yuml"},    {402, "fnof"},   {913, "Alpha"},  {914, "Beta"},    {915, "Gamma"},   {916, "Delta"},
    {917, "Epsilon"}, {918, "Zeta"},   {919, "Eta"},    {920, "Theta"},   {921, "Iota"},    {922, "Kappa"},
    {923, "Lambda"},  {924, "Mu"},     {925, "Nu"},     {926, "Xi"},      {927, "Omicron"}, {928, "Pi"},
    {929, "Rho"},     {931, "Sigma"},  {932, "Tau"},    {933, "Upsilon"}, {934, "Phi"},     {935, "Chi"},
    {936, "Psi"},     {937, "Omega"},  {945, "alpha"},  {946, "beta"},    {947, "gamma"},   {948, "delta"},
    {949, "epsilon"}, {950, "zeta"},   {951, "eta"},    {952, "theta"},   {953, "iota"},    {954, "kappa"},
    {955, "lambda"},  {956, "mu"},     {957, "nu"},     {958, "xi"},      {959, "omicron"}, {960, "pi"},
    {961, "rho"},     {962, "sigmaf"}, {963, "sigma"},  {964, "tau"},     {965, "upsilon"}, {966, "phi"},
    {967, "chi"},     {968, "psi"},    {969, "omega"},  {8194, "ensp"},   {8195, "emsp"},   {8201, "thinsp"},
    {8204, "zwnj"},   {8205, "zwj"},   {8216, "lsquo"}, {8217, "rsquo"},  {8220, "ldquo"},  {8221, "rdquo"},
    {171, "laquo"},   {187, "raquo"},
};

const QHash<QString, char32_t>& Codes() {
    static const QHash<QString, char32_t> codes = [] {
        QHash<QString, char32_t> all;
        for (const CharacterRow& row : CharacterTable())
            all.insert(QString(row.Entity).mid(1).chopped(1), static_cast<char32_t>(row.Code));
        for (const EntityRow& row : others)
            all.insert(QLatin1String(row.name), row.code);
        return all;
    }();
    return codes;
}

} // namespace

char32_t CodeOfEntity(QStringView name) {
    return Codes().value(name.toString());
}

QString EntityFor(char32_t code) {
    static const QHash<char32_t, QString> names = [] {
        QHash<char32_t, QString> all;
        for (auto row = Codes().cbegin(); row != Codes().cend(); ++row)
            all.insert(row.value(), row.key());
        return all;
    }();
    const auto name = names.constFind(code);
    const QString inner = name == names.cend() ? u'#' + QString::number(uint{code}) : *name;
    return u'&' + inner + u';';
}
