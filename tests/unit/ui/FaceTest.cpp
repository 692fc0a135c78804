// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "face/ContrastCheck.h"
#include "face/FaceLook.h"
#include "face/FaceProgram.h"
#include "face/FaceScenes.h"
#include "face/LayoutCheck.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::IsEmpty;

const QList<FaceLook> looks{
    {.name = u"Light"_s},
    {.name = u"Dark"_s, .appearance = {.scheme = ColorScheme::Dark, .isStill = true}},
    {.name = u"HighContrast"_s,
        .appearance = {.scheme = ColorScheme::Light, .isHighContrast = true, .isStill = true}},
    {.name = u"HighContrastDark"_s,
        .appearance = {.scheme = ColorScheme::Dark, .isHighContrast = true, .isStill = true}},
    {.name = u"Mirrored"_s, .mirrored = true},
    {.name = u"Wordy"_s, .wordy = true},
    {.name = u"LargeText"_s, .textScale = 2},
    {.name = u"LargeTextWordy"_s, .textScale = 2, .wordy = true},
    {.name = u"LargeTextMirrored"_s, .textScale = 2, .mirrored = true},
};

/// Whether all can be read is seen without the sanitizers. With them it is memory that counts,
/// which no other look uses in another way: they have the first one, and the one with most done to
/// it.
QList<FaceLook> looksOfThisBuild()
{
#ifdef __SANITIZE_ADDRESS__
    return {looks.first(), looks.last()};
#else
    return looks;
#endif
}

QStringList languagesOfThisBuild()
{
#ifdef __SANITIZE_ADDRESS__
    return spokenLanguages().first(1);
#else
    return spokenLanguages();
#endif
}

void expectReadable(const FaceScene &scene, const FaceLook &look)
{
    FaceProgram program(look.appearance);
    enter(scene, program);
    ASSERT_FALSE(FaceProgram::windows().isEmpty());
    for (QWidget *window : FaceProgram::windows()) {
        EXPECT_THAT(layoutFindings(*window), IsEmpty());
        EXPECT_THAT(contrastFindings(*window), IsEmpty());
    }
}

class FaceTest : public ::testing::TestWithParam<std::tuple<FaceScene, FaceLook>>
{
protected:
    const FaceScene &scene() const { return std::get<0>(GetParam()); }
    const FaceLook &look() const { return std::get<1>(GetParam()); }
};

std::string nameOf(const ::testing::TestParamInfo<FaceTest::ParamType> &info)
{
    QString name;
    for (const QString &word : std::get<0>(info.param).name.split(u'-')) {
        name += word.left(1).toUpper() + word.mid(1);
    }
    return (name + u"In"_s + std::get<1>(info.param).name).toStdString();
}

INSTANTIATE_TEST_SUITE_P(, FaceTest,
    ::testing::Combine(::testing::ValuesIn(faceScenes()), ::testing::ValuesIn(looksOfThisBuild())),
    nameOf);

TEST_P(FaceTest, CanBeRead)
{
    const DressedApplication dressed(look());
    expectReadable(scene(), look());
}

/// A process for each language with each scene would take longer than the look: one goes through
/// all the scenes.
class FaceLanguageTest : public ::testing::TestWithParam<std::tuple<QString, int>>
{
protected:
    const QString &language() const { return std::get<0>(GetParam()); }
    int textScale() const { return std::get<1>(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(, FaceLanguageTest,
    ::testing::Combine(::testing::ValuesIn(languagesOfThisBuild()), ::testing::Values(1, 2)),
    [](const ::testing::TestParamInfo<FaceLanguageTest::ParamType> &tested) {
        QString name = std::get<0>(tested.param);
        name.remove(u'_');
        if (std::get<1>(tested.param) > 1) {
            name += u"InLargeText"_s;
        }
        return name.toStdString();
    });

TEST_P(FaceLanguageTest, EverySceneCanBeRead)
{
    const FaceLook look{.name = language(), .textScale = textScale(), .language = language()};
    const DressedApplication dressed(look);
    for (const FaceScene &scene : faceScenes()) {
        SCOPED_TRACE(scene.name.toStdString());
        expectReadable(scene, look);
    }
}

} // namespace
} // namespace quillon::test
