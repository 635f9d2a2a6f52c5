// render/SceneFields.h: the fields of the scene records by name (see base/Fields.h). The names are the driver's paths.
#pragma once
#include "base/Fields.h"
#include "render/Scene.h"

template <> struct base::FieldsOf<render::MeshPt>
{
    using R = render::MeshPt;
    static constexpr auto Table =
        std::make_tuple(Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"U", &R::U}, Field{"V", &R::V});
};

template <> struct base::FieldsOf<render::PolyPt>
{
    using R = render::PolyPt;
    static constexpr auto Table = std::make_tuple(Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z});
};

template <> struct base::FieldsOf<render::ObjMesh>
{
    using R = render::ObjMesh;
    static constexpr auto Table = std::make_tuple(
        Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"Colour", &R::Colour}, Fixed{"Rows", &R::Rows},
        Fixed{"Cols", &R::Cols}, Field{"ColR", &R::ColR}, Field{"ColG", &R::ColG}, Field{"ColB", &R::ColB},
        Field{"TexIndex", &R::TexIndex}, Field{"Pts", &R::Pts});
};

template <> struct base::FieldsOf<render::SfereLink>
{
    using R = render::SfereLink;
    static constexpr auto Table = std::make_tuple(Field{"M", &R::M}, Field{"I", &R::I}, Field{"J", &R::J});
};

template <> struct base::FieldsOf<render::Sfera>
{
    using R = render::Sfera;
    static constexpr auto Table =
        std::make_tuple(Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"R", &R::R},
                        Fixed{"NumLinks", &R::NumLinks}, Field{"Links", &R::Links});
};

template <> struct base::FieldsOf<render::Obj>
{
    using R = render::Obj;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"Mass", &R::Mass},
                        Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"AngleA", &R::AngleA},
                        Field{"AngleB", &R::AngleB}, Field{"Radius", &R::Radius}, Fixed{"NumSfere", &R::NumSfere},
                        Fixed{"NumMesh", &R::NumMesh}, Field{"Sfere", &R::Sfere}, Field{"Mesh", &R::Mesh});
};

template <> struct base::FieldsOf<render::Poly>
{
    using R = render::Poly;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"ColR", &R::ColR},
                        Field{"ColG", &R::ColG}, Field{"ColB", &R::ColB}, Field{"Pts", &R::Pts});
};

template <> struct base::FieldsOf<render::Sprite3D>
{
    using R = render::Sprite3D;
    static constexpr auto Table = std::make_tuple(
        Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z},
        Field{"Scale", &R::Scale}, Field{"Alpha", &R::Alpha}, Fixed{"Width", &R::Width}, Fixed{"Height", &R::Height});
};

template <> struct base::FieldsOf<render::Particle>
{
    using R = render::Particle;
    static constexpr auto Table =
        std::make_tuple(Field{"Life", &R::Life}, Field{"Sprite", &R::Sprite}, Field{"Kind", &R::Kind});
};

template <> struct base::FieldsOf<render::Pic2D>
{
    using R = render::Pic2D;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
                        Fixed{"Width", &R::Width}, Fixed{"Height", &R::Height});
};

template <> struct base::FieldsOf<render::Rect2D>
{
    using R = render::Rect2D;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
                        Field{"W", &R::W}, Field{"H", &R::H}, Field{"Hidden", &R::Hidden}, Field{"ColR", &R::ColR},
                        Field{"ColG", &R::ColG}, Field{"ColB", &R::ColB});
};

template <> struct base::FieldsOf<render::Label2D>
{
    using R = render::Label2D;
    static constexpr auto Table = std::make_tuple(
        Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
        Field{"Style", &R::Style}, Field{"Text", &R::Text}, Field{"Scale", &R::Scale}, Field{"TabWidth", &R::TabWidth},
        Field{"ColR", &R::ColR}, Field{"ColG", &R::ColG}, Field{"ColB", &R::ColB}, Field{"Fade", &R::Fade});
};

template <> struct base::FieldsOf<render::Texture>
{
    using R = render::Texture;
    static constexpr auto Table = std::make_tuple(Field{"Free", &R::Free}, Field{"Path", &R::Path},
                                                  Fixed{"Width", &R::Width}, Fixed{"Height", &R::Height});
};

template <> struct base::FieldsOf<render::Ground>
{
    using R = render::Ground;
    static constexpr auto Table =
        std::make_tuple(Fixed{"Width", &R::Width}, Fixed{"Height", &R::Height}, Field{"GroundScale", &R::GroundScale});
};
