#include "views/FaceModel.h"

#include <utility>

namespace quillmere {

void FaceModel::setFace(HUDFace face)
{
    const HUDFace former = std::exchange(face_, std::move(face));
    const auto tell = [&](auto HUDFace::*field, void (FaceModel::*changed)()) {
        if (former.*field != face_.*field)
            Q_EMIT(this->*changed)();
    };
    // A scene of another layout is made anew, from the whole of the face. How long a change takes
    // is known before the change.
    tell(&HUDFace::layout, &FaceModel::layoutChanged);
    tell(&HUDFace::levelAnimation, &FaceModel::levelAnimationChanged);
    tell(&HUDFace::size, &FaceModel::sizeChanged);
    tell(&HUDFace::symbol, &FaceModel::symbolChanged);
    tell(&HUDFace::symbolSize, &FaceModel::symbolSizeChanged);
    tell(&HUDFace::picture, &FaceModel::pictureChanged);
    tell(&HUDFace::title, &FaceModel::titleChanged);
    tell(&HUDFace::subtitle, &FaceModel::subtitleChanged);
    tell(&HUDFace::level, &FaceModel::levelChanged);
    tell(&HUDFace::figures, &FaceModel::figuresChanged);
    tell(&HUDFace::label, &FaceModel::labelChanged);
    tell(&HUDFace::barColors, &FaceModel::barColorsChanged);
    tell(&HUDFace::colorsFollowTrack, &FaceModel::colorsFollowTrackChanged);
    tell(&HUDFace::glow, &FaceModel::glowChanged);
    tell(&HUDFace::boxColor, &FaceModel::boxColorChanged);
    tell(&HUDFace::accent, &FaceModel::accentChanged);
    tell(&HUDFace::accessibleText, &FaceModel::accessibleTextChanged);
}

} // namespace quillmere
