#pragma once

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_canvas.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"
#include "plugin/module/windows/interfaces/operation.h"

namespace Meridax::Host::Binary {

template <>
struct Table<IHostCanvas> {
    static constexpr std::string_view Text = "IHostCanvas";
    using Operations = OperationList<
        Operation<1, "LineTo", &IHostCanvas::LineTo>, Operation<2, "MoveTo", &IHostCanvas::MoveTo>,
        Operation<4, "Ellipse", &IHostCanvas::Ellipse>,
        Operation<5, "Rectangle", &IHostCanvas::Rectangle>,
        Operation<6, "TextOut", &IHostCanvas::TextOut>,
        Operation<7, "GetBrush", &IHostCanvas::GetBrush>,
        Operation<8, "GetPen", &IHostCanvas::GetPen>,
        Operation<9, "GetFont", &IHostCanvas::GetFont>, Operation<10, "Arc", &IHostCanvas::Arc>,
        Operation<14, "TextWidth", &IHostCanvas::TextWidth>,
        Operation<15, "TextHeight", &IHostCanvas::TextHeight>,
        Operation<16, "TextRect", &IHostCanvas::TextRect>,
        Operation<17, "Polygon", &IHostCanvas::Polygon>>;
};

template <>
struct Table<IHostPen> {
    static constexpr std::string_view Text = "IHostPen";
    using Operations = OperationList<Operation<2, "SetColor", &IHostPen::SetColor>,
                                     Operation<4, "SetWidth", &IHostPen::SetWidth>,
                                     Operation<6, "SetStyle", &IHostPen::SetStyle>>;
};

template <>
struct Table<IHostBrush> {
    static constexpr std::string_view Text = "IHostBrush";
    using Operations = OperationList<Operation<2, "SetColor", &IHostBrush::SetColor>,
                                     Operation<4, "SetStyle", &IHostBrush::SetStyle>>;
};

template <>
struct Table<IHostFont> {
    static constexpr std::string_view Text = "IHostFont";
    using Operations = OperationList<Operation<4, "SetColor", &IHostFont::SetColor>,
                                     Operation<7, "GetHeight", &IHostFont::GetHeight>,
                                     Operation<8, "SetHeight", &IHostFont::SetHeight>,
                                     Operation<10, "SetStyle", &IHostFont::SetStyle>,
                                     Operation<12, "SetOrientation", &IHostFont::SetOrientation>>;
};

}  // namespace Meridax::Host::Binary
