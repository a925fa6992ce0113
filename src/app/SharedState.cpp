#include "app/SharedState.h"

namespace tarn {

SharedState::SharedState() {
    MinCutLen[0] = 3.0F;
    MinCutLen[1] = 1.5F;
    MinCutLen[2] = 0.5F;
    DimAllArrays();
}

void SharedState::DimAllArrays() {
    constexpr int LastCorner = 2;

    RoomWidth = BoundedArray<Integer>(MaxRoom);
    RoomLength = BoundedArray<Integer>(MaxRoom);
    RoomCarpet = BoundedArray<Byte>(MaxRoom);
    RoomBase = BoundedArray<Byte>(MaxRoom);
    RoomNoStr = BoundedArray<std::string>(MaxRoom);
    RoomRemark = BoundedArray<std::string>(MaxRoom);
    RoomX = BoundedTable<Single>(MaxRoom, LastCorner);
    RoomY = BoundedTable<Single>(MaxRoom, LastCorner);

    for (auto* cuts : {&ECutX1, &ECutX2, &ECutY1, &ECutY2}) {
        *cuts = BoundedArray<Single>(MaxPiece);
    }
}

} // namespace tarn
