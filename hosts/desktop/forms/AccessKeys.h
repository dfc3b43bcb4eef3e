#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace desktop {

// Gives the labels of a dialog their access keys: each key once, letters that people expect first, and as many labels
// served as can be.
class AccessKeys {
public:
    enum class Claim : std::uint8_t { givesWay, keeps };

    // A label as it stands, perhaps with an ampersand before the key that it wishes for.
    void add(const QString& label, Claim claim = Claim::givesWay);

    // The labels in the order of adding, trimmed, with one ampersand before the key and other ampersands doubled.
    // Earlier ones keep what they like best; those that give way do so where a later one would get nothing.
    std::vector<QString> assign();

private:
    struct Label {
        QString text;                     // as a person reads it
        std::vector<qsizetype> positions; // of letters and digits, best first
        qsizetype chosen = -1;
        Claim claim = Claim::givesWay;
    };

    bool serve(std::size_t index, std::vector<bool>& tried);
    QChar keyAt(const Label& label, qsizetype position) const { return label.text[position].toUpper(); }

    std::vector<Label> labels_;
};

} // namespace desktop
