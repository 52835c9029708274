# The source folders in layers, bottom up. Each line names a folder, its library and the folders
# below it whose headers it includes directly; through those it may also include what they use.
# A folder may only use folders named above it in this list, so the layers never form a circle.
# zp_library links by this table, and the test "schichten" checks every #include against it.
set(ZP_SCHICHTEN
  "core/runtime    zp_runtime"
  "model           zp_model"
  "core/state      zp_state          core/runtime model"
  "persist         zp_persist        core/state"
  "compose/canvas  zp_canvas"
  "calendar/data   zp_calendar_data  persist"
  "render          zp_render         compose/canvas core/state"
  "calendar/walks  zp_calendar_walks calendar/data render"
  "compose         zp_compose        calendar/walks"
  "output          zp_output         compose"
  "core            zp_core           output"
  "dialogs         zp_dialogs        core"
  "app             zp_batch          dialogs")
