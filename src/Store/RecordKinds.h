#pragma once

#include "Models/Activity.h"
#include "Models/Book.h"
#include "Models/CalendarEvent.h"
#include "Models/CodeDocument.h"
#include "Models/DBRow.h"
#include "Models/DatabaseTable.h"
#include "Models/Deck.h"
#include "Models/Folder.h"
#include "Models/Habit.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Models/TaskItem.h"

/// A kind of record and its key in the workspace file.
template <typename RecordType>
struct RecordKind {
    using Record = RecordType;
    std::string_view key;
};

/// The one list of the kinds of record, in the order of the file. The file, the store's lists, change notices
/// and the undo history are all made from it.
namespace RecordKinds
{
inline constexpr std::tuple all{
    RecordKind<Folder>{"folders"},
    RecordKind<Page>{"pages"},
    RecordKind<TaskItem>{"tasks"},
    RecordKind<CalendarEvent>{"events"},
    RecordKind<Project>{"projects"},
    RecordKind<Activity>{"activities"},
    RecordKind<DatabaseTable>{"databases"},
    RecordKind<DBRow>{"rows"},
    RecordKind<Habit>{"habits"},
    RecordKind<CodeDocument>{"codeDocuments"},
    RecordKind<Deck>{"decks"},
    RecordKind<Book>{"books"},
};

using All = std::remove_const_t<decltype(all)>;
inline constexpr std::size_t count = std::tuple_size_v<All>;

template <std::size_t Index>
using RecordAt = typename std::tuple_element_t<Index, All>::Record;

/// The position of a kind in the list.
template <typename Record>
inline constexpr std::size_t indexOf = []<std::size_t... Index>(std::index_sequence<Index...>) {
    return ((std::is_same_v<Record, RecordAt<Index>> ? Index : 0) + ...);
}(std::make_index_sequence<count>());

template <template <typename> typename Holder, typename Kinds>
struct HolderOfEach;
template <template <typename> typename Holder, typename... Kind>
struct HolderOfEach<Holder, std::tuple<Kind...>> {
    using Type = std::tuple<Holder<typename Kind::Record>...>;
};

/// A tuple with one `Holder<Record>` for each kind.
template <template <typename> typename Holder>
using Each = typename HolderOfEach<Holder, All>::Type;

/// Calls `call.operator()<Record>()` for each kind in turn.
template <typename Call>
void forEach(Call call)
{
    std::apply([&call]<typename... Kind>(
                   const Kind &...) { (call.template operator()<typename Kind::Record>(), ...); },
               all);
}
} // namespace RecordKinds
