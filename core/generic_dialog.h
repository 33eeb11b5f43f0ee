// The dialog procedure every variable dialog runs under: source and target
// lists, Add and Remove, Help, Reset All, the saved selection restored on
// open, kept on OK and given back on Cancel. What is particular to one
// dialog is its DialogBehaviour's.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/command_preview.h"
#include "core/descriptor.h"
#include "core/dialog_behaviour.h"
#include "core/resizable_layout.h"
#include "core/seam.h"
#include "core/source_filter.h"
#include "core/variable_list.h"
#include "resources/common_ids.h"

namespace kvs {

class GenericDialog : public DialogHandler {
public:
    GenericDialog(const DispatchRow& row, Descriptor& descriptor);

    int onInit(DialogView& view) override;
    void onCommand(DialogView& view, int controlId, int notifyCode) override;
    void onSysCommand(DialogView& view, int code) override;
    // Drag and drop, Delete and Ctrl+A in the lists, Move Up and Move Down:
    // core/list_gestures.cpp.
    bool canDrop(DialogView& view, int fromList, int toList) override;
    void onDrop(DialogView& view, int fromList, int toList, int index) override;
    bool onListKey(DialogView& view, int listId, ListKey key) override;
    // The user resized the dialog: lists grow, the button column keeps to
    // the right (core/dialog_resize.h).
    void onResize(DialogView& view, int width, int height) override;

    std::uint16_t commandId() const { return commandId_; }
    // The names behind source list 4 or 5, for behaviours that refill them.
    VariableCatalogue& catalogue(int sourceListId) {
        return sourceListId == IDC_SOURCE2 ? secondCatalogue_ : sourceCatalogue_;
    }

private:
    struct Target {
        int listId;
        SelectionArray* array;
        std::int32_t capacity;
        std::vector<std::int32_t> backup;  // a working copy, not kept memory
    };

    // Capacity of a target list in this dialog; 0 when the list is not used.
    int targetCapacity(int listId) const;
    bool fourLists() const;
    // The names a target list's entries index: list 11 takes its names from
    // the second source list when the dialog has one.
    const VariableCatalogue& catalogueOf(const DialogView& view, const Target& target) const;
    void prepareTargets(DialogView& view);
    void handleCommand(DialogView& view, int controlId, int notifyCode);
    void close(DialogView& view, int result);
    void help(DialogView& view);
    void resetAll(DialogView& view);
    void installPreview(DialogView& view);
    void refreshPreview(DialogView& view);
    // The list Move Up and Move Down serve, and the moves themselves.
    int orderedList() const;
    void moveEntries(DialogView& view, int buttonId);
    void updateReorderButtons(DialogView& view);
    // Accessible names of the Add, Remove and Move buttons, from their lists' labels.
    void nameTransferButtons(DialogView& view);
    // After names moved or a selection changed: buttons and the behaviour follow.
    void listsChanged(DialogView& view);
    std::uint32_t helpContext() const;

    const DispatchRow& row_;
    Descriptor& descriptor_;
    std::uint16_t commandId_;
    DialogBehaviour* behaviour_;
    std::vector<Target> targets_;
    VariableCatalogue sourceCatalogue_;
    VariableCatalogue secondCatalogue_;
    CommandPreview preview_;
    SourceFilters filters_;
    ResizableLayout layout_;
    bool closing_ = false;
};

}  // namespace kvs
