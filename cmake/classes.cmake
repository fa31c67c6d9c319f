# SPDX-License-Identifier: Apache-2.0
# The one list of classes. Everything that treats the classes alike is driven from it: the library's
# sources and headers, the unit and interface tests, the robustness drive, the Designer plugin, the
# catalogue, the benchmarks and the documentation. A row says only what the class cannot say itself:
#
#   panelkit_class(<Class>
#       FAMILY  <heading under which the catalogue and the documentation list it>
#       TOOLTIP <one line for Designer and the catalogue>
#       SIZE    <width> <height>        initial size in Designer, in px
#       [INITIAL <property>=<value>...] properties that Designer gives to a new one: texts, numbers,
#                                       true or false, enumerators (Key or Key|Key), colours
#                                       ("textColor=#202020", in quotation marks)
#       [HEADER <name>]                 header and source, if not the class's name in lower case
#       [CREATE <expression>]           how to make one under `parent`, if not new Class(parent)
#       [NOT_A_WIDGET])                 a class that Designer and the catalogue cannot show
#
#   panelkit_class(<Class> PART_OF <Class above>)
#
# is a class that only works inside the other one: it lives in its header and source, and is driven,
# shown, measured and documented with it. What it has for itself is its unit test and its written
# interface.
#
# CONTRIBUTING.md lists the files that belong to a class.

panelkit_class(SpIconButton
    FAMILY "Touch buttons"
    TOOLTIP "Image button with pressed, focused and disabled looks, caption, latch and long press"
    SIZE 120 80
    INITIAL displayText=Button "normalTextColor=#202020") # white is hard to see on Designer's form

panelkit_class(SpHorStrButton
    FAMILY "Touch buttons"
    TOOLTIP "Button with an icon and a string side by side, or the string over the icon"
    SIZE 160 60
    INITIAL displayString=Button "normalTextColor=#202020")

panelkit_class(SpVerStrButton
    FAMILY "Touch buttons"
    TOOLTIP "Button with an icon above a string, with pressed, focused and disabled looks and a latch"
    SIZE 120 120
    INITIAL displayString=Button)

panelkit_class(SpDisLabel
    FAMILY "Touch buttons"
    TOOLTIP "Touchable label with a shortened string on a rounded ground, or with a picture"
    SIZE 160 60
    INITIAL text=Label "fontColor=#202020")

panelkit_class(MOnOffButton
    FAMILY "Switches and selection"
    TOOLTIP "On/off switch to be tapped or dragged, pictured or painted in two colours"
    SIZE 90 44)

panelkit_class(MFocusButton
    FAMILY "Switches and selection"
    TOOLTIP "Image button of which one is the current choice, with caption and long press"
    SIZE 120 80
    INITIAL displayText=Focus)

panelkit_class(MPresetButton
    FAMILY "Switches and selection"
    TOOLTIP "Preset key: image button with an icon, two lines of text and a long press"
    SIZE 160 80
    INITIAL displayText=Preset)

panelkit_class(MSelectButton
    FAMILY "Switches and selection"
    TOOLTIP "Image button that can be selected, with a caption in a colour for each look"
    SIZE 120 80
    INITIAL displayText=Select "normalTextColor=#202020")

panelkit_class(SpMultipleButton
    FAMILY "State buttons"
    TOOLTIP "Button that goes through up to 20 states, each with a picture and a pressed picture"
    SIZE 120 120)

panelkit_class(MultipleStateButton
    FAMILY "State buttons"
    TOOLTIP "Image button that each touch steps to its next state, made from image files"
    SIZE 120 80
    CREATE "new MultipleStateButton(0, 0, 0, {}, {}, {}, parent)")

panelkit_class(PlayButton
    FAMILY "State buttons"
    TOOLTIP "Push button of two images, made from image files"
    SIZE 120 80
    CREATE "new PlayButton(0, 0, 0, {}, {}, parent)")

panelkit_class(SpLockButton
    FAMILY "State buttons"
    TOOLTIP "Image button that each press turns over between up and down"
    SIZE 120 80
    INITIAL displayText=Lock "normalTextColor=#202020")

panelkit_class(SpHomeIcon
    FAMILY "Home screen and backdrops"
    TOOLTIP "Launcher tile with a caption, pictures for its application's states, or an animation"
    SIZE 122 164
    INITIAL iconText=Home "fontColor=#202020")

panelkit_class(SpMaskBackground
    FAMILY "Home screen and backdrops"
    TOOLTIP "Translucent mask to dim a page under a popup, which reports where it is touched"
    SIZE 400 240
    INITIAL "painterColor=#80000000")

panelkit_class(SpBackgroundImage
    FAMILY "Home screen and backdrops"
    TOOLTIP "Picture stretched behind other widgets, turned by any angle"
    SIZE 400 240)

panelkit_class(MGifPlay
    FAMILY "Home screen and backdrops"
    TOOLTIP "Animated image file, stretched over the widget, that can be tapped"
    SIZE 120 120)

panelkit_class(SpLabel
    FAMILY "Home screen and backdrops"
    TOOLTIP "Picture stretched over the widget under a black veil"
    SIZE 160 120)

panelkit_class(SpTableList
    FAMILY "Scrolling lists"
    TOOLTIP "Kinetic list whose rows have icons, texts and seven styles, with clicks on rows and icons"
    SIZE 400 300
    INITIAL itemHeight=60 itemWidth=400)
panelkit_class(styleDelegate NOT_A_WIDGET
    FAMILY "Scrolling lists")

panelkit_class(MArcList
    FAMILY "Scrolling lists"
    TOOLTIP "Letter index on an arc or in a column, scrolled and tapped with a finger"
    SIZE 560 400)

panelkit_class(MArcScrollBar
    FAMILY "Scrolling lists"
    TOOLTIP "Scroll bar in the shape of an arc, with ticks and a pointer, or straight"
    SIZE 160 400)

panelkit_class(MListView
    FAMILY "Scrolling lists"
    TOOLTIP "Column or free arrangement of image buttons, one of them down on request"
    SIZE 160 320
    CREATE "new MListView(parent, QRect(0, 0, 160, 320))")

panelkit_class(SpRollingText
    FAMILY "Scrolling text"
    TOOLTIP "Line of text that rolls, or is shortened, where it is too wide"
    SIZE 200 40
    INITIAL "text=Rolling text" "textColor=#202020")

panelkit_class(MVScrollLabel
    FAMILY "Scrolling text"
    TOOLTIP "Label that scrolls its text upward where it is too high"
    SIZE 200 120
    INITIAL "text=Scrolling label")

panelkit_class(SpSetupSlider
    FAMILY "Sliders"
    TOOLTIP "Vertical slider for a setting, with its value above and buttons for single steps"
    SIZE 50 230)

panelkit_class(SpSetupSliderContainer
    FAMILY "Sliders"
    TOOLTIP "Page of setup sliders that hands on their signals and turns swipes into page changes"
    SIZE 400 260)

panelkit_class(MHorSlider
    FAMILY "Sliders"
    TOOLTIP "Horizontal slider of images, filled from the left end or from the middle"
    SIZE 260 40)

panelkit_class(MCircularDial
    FAMILY "Sliders"
    TOOLTIP "Round dial with ticks, labels and a pointer, turned by touching near its rim"
    SIZE 300 300
    INITIAL radius=150 scaleLong=5)

panelkit_class(MProgressBar
    FAMILY "Progress"
    TOOLTIP "Playback bar that can be dragged, in images or plain colours"
    SIZE 400 60
    INITIAL ponitRadius=24)

panelkit_class(MOProgress
    FAMILY "Progress"
    TOOLTIP "Progress as a ring with percentage and caption"
    SIZE 220 220)

panelkit_class(SpLoadingRound
    FAMILY "Progress"
    TOOLTIP "Busy ring of twelve spokes that turns, and a mask for touches"
    SIZE 80 80
    INITIAL "painterColor=#2f7fc6")

panelkit_class(MRadioMovePoint
    FAMILY "Radio scales"
    TOOLTIP "AM/FM tuner: a scale with a needle to be dragged over it"
    SIZE 831 120
    INITIAL bandType=FM freqStart=8750 lineStart=20 lineEnd=800 pixCountMeta=1 totalCountMeta=100 txtYpos=8 lineYpos=70 "lineColor=#202020" initByCustomeValue=true)
panelkit_class(ScaleBkg PART_OF MRadioMovePoint)
panelkit_class(MovePoint PART_OF MRadioMovePoint)
panelkit_class(FmMovePoint PART_OF MRadioMovePoint)

panelkit_class(MRadioSlider
    FAMILY "Radio scales"
    TOOLTIP "AM/FM tuner: a scale that is dragged under a fixed indicator"
    SIZE 640 100
    INITIAL "lineColor=#202020" curFreq=98)

panelkit_class(MKARVOSlider
    FAMILY "Radio scales"
    TOOLTIP "AM/FM tuner: an indicator to be dragged over a fixed scale, snapping to a band of its own"
    SIZE 730 160
    INITIAL "lineColor=#202020")
