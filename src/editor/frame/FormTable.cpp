#include "editor/frame/FormTable.h"

#include "editor/frame/Commands.h"

#include <algorithm>

void FillFormCommands(Frame& frame, std::span<const FormRow> forms) {
    for (const auto& [name, reach] : forms) {
        if (!reach.show)
            continue;
        const auto fill = [&frame, show = reach.show](const QString& command) {
            frame.Commands().Set(command, [&frame, show] { show(frame); });
        };
        if (*reach.entry.name)
            fill(QString::fromLatin1(reach.entry.name));
        if (*reach.button.key)
            fill(QStringLiteral("tb_") + QString::fromLatin1(reach.button.key));
    }
}

const FormRow* FormThatEdits(std::span<const FormRow> forms, const QString& tag) {
    const FormRow* best = nullptr;
    for (const FormRow& row : forms) {
        const EditedTag& edits = row.reach.edits;
        if (edits.show && tag.contains(QLatin1String(edits.word), Qt::CaseInsensitive) &&
            (!best || edits.turn < best->reach.edits.turn))
            best = &row;
    }
    return best;
}

std::vector<const char*> FormsToUnload(std::span<const FormRow> forms) {
    std::vector<FormRow> rows;
    std::ranges::copy_if(forms, std::back_inserter(rows),
                         [](const FormRow& row) { return row.reach.unload != FormReach::Never; });
    std::ranges::stable_sort(rows, {}, [](const FormRow& row) { return row.reach.unload; });
    std::vector<const char*> names;
    for (const FormRow& row : rows)
        names.push_back(row.name);
    return names;
}
