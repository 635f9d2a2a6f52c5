// SPDX-License-Identifier: Zlib
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
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"Colour", &R::Colour},
                        Derived{"Rows", [](const R& mesh) { return mesh.Pts.Rows; }},
                        Derived{"Cols", [](const R& mesh) { return mesh.Pts.Cols; }}, Part{"ColR", &R::Col, &Rgb::R},
                        Part{"ColG", &R::Col, &Rgb::G}, Part{"ColB", &R::Col, &Rgb::B}, Field{"TexIndex", &R::TexIndex},
                        Field{"Pts", &R::Pts});
};

template <> struct base::FieldsOf<render::SfereLink>
{
    using R = render::SfereLink;
    static constexpr auto Table = std::make_tuple(Field{"M", &R::M}, Field{"I", &R::I}, Field{"J", &R::J});
};

template <> struct base::FieldsOf<render::Sfera>
{
    using R = render::Sfera;
    static constexpr auto Table = std::make_tuple(
        Field{"X", &R::X}, Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"R", &R::R},
        Derived{"NumLinks", [](const R& sphere) { return CountOf(sphere.Links); }}, Field{"Links", &R::Links});
};

template <> struct base::FieldsOf<render::Obj>
{
    using R = render::Obj;
    static constexpr auto Table = std::make_tuple(
        Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"Mass", &R::Mass}, Field{"X", &R::X},
        Field{"Y", &R::Y}, Field{"Z", &R::Z}, Field{"AngleA", &R::AngleA}, Field{"AngleB", &R::AngleB},
        Field{"Radius", &R::Radius}, Derived{"NumSfere", [](const R& object) { return CountOf(object.Sfere); }},
        Derived{"NumMesh", [](const R& object) { return CountOf(object.Mesh); }}, Field{"Sfere", &R::Sfere},
        Field{"Mesh", &R::Mesh});
};

template <> struct base::FieldsOf<render::Poly>
{
    using R = render::Poly;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Part{"ColR", &R::Col, &Rgb::R},
                        Part{"ColG", &R::Col, &Rgb::G}, Part{"ColB", &R::Col, &Rgb::B}, Field{"Pts", &R::Pts});
};

template <> struct base::FieldsOf<render::Sprite3D>
{
    using R = render::Sprite3D;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
                        Field{"Z", &R::Z}, Field{"Scale", &R::Scale}, Field{"Alpha", &R::Alpha},
                        Derived{"Width", [](const R& sprite) { return sprite.Width(); }},
                        Derived{"Height", [](const R& sprite) { return sprite.Height(); }});
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
                        Derived{"Width", [](const R& pic) { return pic.Pic.Info.Width; }},
                        Derived{"Height", [](const R& pic) { return pic.Pic.Info.Height; }});
};

template <> struct base::FieldsOf<render::Rect2D>
{
    using R = render::Rect2D;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
                        Field{"W", &R::W}, Field{"H", &R::H}, Field{"Hidden", &R::Hidden},
                        Part{"ColR", &R::Col, &Rgb::R}, Part{"ColG", &R::Col, &Rgb::G}, Part{"ColB", &R::Col, &Rgb::B});
};

template <> struct base::FieldsOf<render::Label2D>
{
    using R = render::Label2D;
    static constexpr auto Table =
        std::make_tuple(Field{"Visible", &R::Visible}, Field{"Free", &R::Free}, Field{"X", &R::X}, Field{"Y", &R::Y},
                        Field{"Style", &R::Style}, Field{"Text", &R::Text}, Field{"Scale", &R::Scale},
                        Field{"TabWidth", &R::TabWidth}, Part{"ColR", &R::Col, &Rgb::R}, Part{"ColG", &R::Col, &Rgb::G},
                        Part{"ColB", &R::Col, &Rgb::B}, Field{"Fade", &R::Fade});
};

template <> struct base::FieldsOf<render::Texture>
{
    using R = render::Texture;
    static constexpr auto Table =
        std::make_tuple(Field{"Free", &R::Free}, Field{"Path", &R::Path},
                        Derived{"Width", [](const R& texture) { return texture.Pic.Info.Width; }},
                        Derived{"Height", [](const R& texture) { return texture.Pic.Info.Height; }});
};

template <> struct base::FieldsOf<render::Ground>
{
    using R = render::Ground;
    static constexpr auto Table =
        std::make_tuple(Fixed{"Width", &R::Width}, Fixed{"Height", &R::Height}, Field{"GroundScale", &R::GroundScale});
};
