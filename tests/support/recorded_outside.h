#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/outside.h"

/// What a form or the program has asked of the outside, in order. Questions take the answers that were laid ready;
/// one without an answer gets No.
struct RecordedOutside
{
    std::deque<bool> answers;
    std::deque<std::string> files;   // to be chosen; without one left none is

    std::vector<std::string> events;   // "message: No rows checked!", "question: ...", "fault: ...", "beep"
    Messages messages;
    Messages questions;
    std::vector<FaultReport> faults;
    std::vector<std::vector<std::string>> printedTexts;
    std::vector<FormImage> printedForms;
    std::vector<FileQuestion> fileQuestions;

    [[nodiscard]] Dialogs dialogs()
    {
        Dialogs dialogs;
        dialogs.message = [this](const Message& message) {
            events.push_back("message: " + message.text);
            messages.push_back(message);
        };
        dialogs.ask = [this](const Message& question) {
            events.push_back("question: " + question.text);
            questions.push_back(question);
            if (answers.empty())
                return false;
            const bool yes = answers.front();
            answers.pop_front();
            return yes;
        };
        dialogs.beep = [this] { events.emplace_back("beep"); };
        dialogs.fault = [this](const FaultReport& fault) {
            events.push_back("fault: " + fault.text);
            faults.push_back(fault);
        };
        dialogs.chooseFile = [this](const FileQuestion& question) -> std::optional<std::string> {
            events.push_back("choose: " + question.title);
            fileQuestions.push_back(question);
            if (files.empty())
                return std::nullopt;
            const std::string file = files.front();
            files.pop_front();
            return file;
        };
        return dialogs;
    }

    [[nodiscard]] Printer printer()
    {
        Printer printer;
        printer.printText = [this](const std::vector<std::string>& lines) {
            events.push_back("print: " + std::to_string(lines.size()) + " lines");
            printedTexts.push_back(lines);
        };
        printer.printForm = [this](const FormImage& image) {
            events.push_back("print: " + image.form);
            printedForms.push_back(image);
        };
        return printer;
    }

    [[nodiscard]] std::size_t countOf(const std::string& messageText) const
    {
        const auto isIt = [&](const Message& message) { return message.text == messageText; };
        return static_cast<std::size_t>(std::count_if(messages.begin(), messages.end(), isIt));
    }

    void forget()
    {
        events.clear();
        messages.clear();
        questions.clear();
        fileQuestions.clear();
        faults.clear();
        printedTexts.clear();
        printedForms.clear();
    }
};
