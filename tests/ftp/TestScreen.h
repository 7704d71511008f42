// A screen that keeps what it is shown and answers by a script.
#pragma once

#include "ftp/Certificate.h"
#include "ftp/Screen.h"

#include <deque>
#include <functional>
#include <QStringList>

class TestScreen final : public Screen {
  public:
    void Line(const QString& text) override {
        lines << text;
        if (shown)
            shown(text);
    }
    void Mark() override { ++marks; }
    void Show(const Progress& progress) override { steps.push_back(progress); }
    bool Trusts(const Certificate& certificate) override {
        asked.push_back(certificate);
        return trusts;
    }
    QString Ask(const QString& prompt, Echo) override {
        prompts << prompt;
        if (answers.empty())
            return {};
        const QString answer = answers.front();
        answers.pop_front();
        return answer;
    }
    bool Has(const char* text) const { return Text().contains(QString::fromLatin1(text)); }
    QString Text() const { return lines.join(u'\n'); }

    QStringList lines, prompts;
    std::deque<QString> answers;
    std::vector<Progress> steps;
    std::vector<Certificate> asked;
    std::function<void(const QString&)> shown;
    bool trusts = false;
    int marks = 0;
};
