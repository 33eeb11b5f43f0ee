// Filling list boxes with variable names, and the name <-> index catalogue
// that turns target lists back into selection arrays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/global_memory.h"
#include "core/seam.h"

namespace kvs {

inline constexpr std::size_t kNameLength = 12;

// The variables one source list was filled from: names by index, and the
// index of every listed name, so a target list maps back in linear time.
class VariableCatalogue {
public:
    void clear();
    void reserve(std::size_t count);
    void add(std::string_view name, bool listed);
    // Forgets the names from index size on.
    void truncate(std::size_t size);
    // The index of a listed name, or -1.
    std::int32_t indexOf(std::string_view name) const;
    // The index of each listed name, -1 for a name not listed. Names that
    // follow the list's order take their places in it (a name listed twice
    // can then map to its second place); others map as indexOf does.
    std::vector<std::int32_t> indicesOf(const std::vector<std::string>& names) const;
    // The name at an index, or empty when out of range.
    std::string_view nameAt(std::int32_t index) const;
    std::size_t size() const { return listed_.size(); }

private:
    void buildIndex() const;
    void insertListed(std::int32_t index) const;
    std::size_t nextListed(std::size_t from) const;
    std::vector<std::int32_t> scanFor(const std::vector<std::string>& names) const;

    // The names end to end, and where each starts (one more entry than
    // names): 100,000 names of a few characters take well under a megabyte,
    // where a string each would take 3.2 (fresh memory is slow to touch).
    std::string chars_;
    std::vector<std::uint32_t> starts_{0};
    std::vector<bool> listed_;
    // Open addressing over the names, built on the first lookup that needs
    // it (a dialog closed with Cancel, or whose targets hold a few names,
    // never does): each slot holds the index of a listed name or -1.
    mutable std::vector<std::int32_t> slots_;
    mutable bool indexed_ = false;
};

// Cuts a blank-padded kernel name field at the first blank after its first
// character; at most 12 characters are kept.
std::string nameFromField(std::string_view field);

// Adds variables 1..count of the data file in use to list listId. Names
// holding "$" are skipped when numericOnly. Dialog 46 (and 677) list "Case"
// first. A full list box stops the filling with the too-many message.
void fillVariableList(DialogView& view, int listId, ListInsert how, std::int32_t count, bool numericOnly,
                      std::uint16_t commandId, VariableCatalogue& catalogue);

// Whether the data file in use has a character variable (a name ending in
// "$"), asked of the kernel whatever the dialog lists.
bool fileHasCharacterVariable();

// Shows the variables of another data file in list listId; an empty file
// name does nothing.
void fillListFromFile(DialogView& view, const std::string& fileName, int listId, ListInsert how,
                      VariableCatalogue* catalogue);

// Puts the names of a saved selection into a target list, in saved order.
void restoreSelection(DialogView& view, const GlobalIndices& entries, std::int32_t capacity,
                      int targetId, const VariableCatalogue& catalogue);

// Writes the names of a target list back as indices, at most capacity of
// them; names the catalogue does not know are passed over.
void storeSelection(const DialogView& view, int targetId, std::int32_t capacity,
                    const VariableCatalogue& catalogue, GlobalIndices& entries);

}  // namespace kvs
