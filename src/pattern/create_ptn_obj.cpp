#include "ptn_obj.h"
#include "ptn_obj_arc.h"
#include "ptn_obj_circle.h"
#include "ptn_obj_line.h"
#include "ptn_obj_polygon.h"
#include "ptn_obj_text.h"

namespace mivo {

std::unique_ptr<SPtnObj> CreatePtnObj(std::u16string_view tag) {
  if (tag == u"+L") return std::make_unique<SPtnObjLine>();
  if (tag == u"+C") return std::make_unique<SPtnObjCircle>();
  if (tag == u"+PG") return std::make_unique<SPtnObjPolygon>();
  if (tag == u"+AR") return std::make_unique<SPtnObjArc>();
  if (tag == u"+TX") return std::make_unique<SPtnObjText>();
  return nullptr;
}

}  // namespace mivo
