#pragma once

/// The texts that the dialogs show, by number.
///
/// The numbers are the vocabulary between the library and the language files of its host: the
/// library asks for a number, the host answers with the wording in the language of its user.
/// Numbers of 60000 and up are the library's own additions. A host may lack them, and what they
/// label then stays mute.
enum class Text : unsigned {
  // Several dialogs
  Name = 355,               ///< label of a name, heading of the column of names
  Description = 284,        ///< label in the discriminator editor, column of the list
  Add = 415,                ///< button Add of the lists and of the time slot editor
  Modify = 416,             ///< button Modify of the lists
  Remove = 420,             ///< button Remove of the lists
  Ok = 428,                 ///< button OK: discriminator, time structure and calendar dialogs
  Cancel = 429,             ///< button Cancel: discriminator, time structure and calendar dialogs
  ConfirmOk = 311,          ///< button OK: condition dialogs and variable selection
  ConfirmCancel = 312,      ///< button Cancel: condition dialogs and variable selection
  DayTypes = 431,           ///< box of day types: their list, calendar, variable selection
  HourTypes = 472,          ///< box of hour types: their list, variables; label of a slot's type
  Conditions = 36424,       ///< discriminator editor: type and button; variable selection: box
  TimeSlots = 461,          ///< discriminator editor: type; day type editor: box of the slots
  From = 462,               ///< start of a slot: column in the day type, label in the slot editor
  To = 463,                 ///< end of a slot: column in the day type, label in the slot editor
  Diagram = 339,            ///< box of the dial (day type editor) and of the grid (slot editor)
  Colour = 411,             ///< label of the swatch in the day and hour type editors
  NameNotAllowed = 32764,   ///< message: a discriminator, day or hour type can't be named so
  TypeNameTaken = 466,      ///< message: another day type, or hour type, has this name
  TypeColourTaken = 465,    ///< question: another day type, or hour type, has this colour
  SlotStartAfterEnd = 469,  ///< message of the day type and the time slot editor

  // Discriminator list
  DiscriminatorListTitle = 32367,        ///< title
  Discriminators = 32370,                ///< box around the list
  Exit = 419,                            ///< button that leaves the dialog
  Copy = 732,                            ///< context menu; the shortcut is appended
  Paste = 742,                           ///< context menu; the shortcut is appended
  RemoveDiscriminatorsQuestion = 32368,  ///< question before the selected rows are removed
  DiscriminatorFileNotDeleted = 32369,   ///< message: the file can't be deleted, removal stops
  ReadingDiscriminators = 60000,         ///< progress of a long first reading: label
  ReadingProgress = 60004,               ///< progress of a long first reading: files, %d of %d

  // Discriminator editor
  AddDiscriminatorTitle = 32359,     ///< title, for a new discriminator
  ModifyDiscriminatorTitle = 32360,  ///< title, for an existing discriminator
  DiscriminatorType = 544,           ///< label of the choice of type
  CalendarLink = 424,                ///< big button that opens the calendar
  DayTypesLink = 426,                ///< big button that opens the day types
  HourTypesLink = 427,               ///< big button that opens the hour types
  SetZeroOutsideSlot = 35235,        ///< check box
  DiscriminatorNameMissing = 32363,  ///< message: the name is empty
  DiscriminatorNameTaken = 32365,    ///< message: another discriminator has this name
  DescriptionWithQuote = 32366,      ///< message: the description holds a double quote
  LinkNotReady = 60005,              ///< tooltip of a big button that can't open its part here
  DiscriminatorNotSaved = 32362,     ///< message: the file can't be written
  DiscriminatorNotOpened = 60034,    ///< message: the file can't be opened
  DiscriminatorDamagedAt = 60035,    ///< more of it: not readable from line %d, column %d on
  DiscriminatorDamaged = 60036,      ///< more of it: not readable as a whole

  // Hour type list and hour type editor
  HourTypeListTitle = 478,      ///< list: title
  AddHourTypeTitle = 476,       ///< editor: title, while the hour type has no name
  ModifyHourTypeTitle = 475,    ///< editor: title, when the hour type has a name
  HourTypeValue = 38293,        ///< editor: label of the value
  HourTypeNameMissing = 477,    ///< editor, message: the name is empty
  HourTypeNameForbidden = 483,  ///< editor, message: double quote, backslash or comma in it

  // Day type list and day type editor
  DayTypeListTitle = 479,       ///< list: title
  AddDayTypeTitle = 459,        ///< editor: title, while the day type has no name
  ModifyDayTypeTitle = 460,     ///< editor: title, when the day type has a name
  DayTypeNameMissing = 464,     ///< editor, message: the name is empty
  DayTypeNameForbidden = 484,   ///< editor, message: double quote, backslash or comma in it
  SlotHourOutOfRange = 467,     ///< editor, message: an hour above 24, or 24 with minutes
  SlotMinuteOutOfRange = 468,   ///< editor, message: a minute above 59
  SlotsOverlap = 470,           ///< editor, message: two slots overlap
  DayNotCoveredQuestion = 471,  ///< editor, question: accept a day with gaps?

  // Time slot editor
  AddSlotTitle = 473,     ///< title, for a new slot
  ModifySlotTitle = 474,  ///< title, for an existing slot
  NoHourType = 480,       ///< message: there is no hour type to choose
  SlotHours = 60009,      ///< what a field of a start or end is called, for people who can't see it
  SlotMinutes = 60010,    ///< likewise

  // Day dial
  DayDialName = 60006,   ///< name, for people who can't see it
  DayDialSlot = 60007,   ///< one slot in its description: from %s to %s
  DayDialEmpty = 60008,  ///< description of a day without slots
  DayDialTyped = 60039,  ///< one slot whose hour type %s is known: from %s to %s

  // Calendar; the names of its months are those of the fast selection
  CalendarTitle = 919,        ///< title
  FastSelectionButton = 433,  ///< button that opens the fast selection
  UnmarkDates = 457,          ///< label of the brush while no day type is selected
  CalendarMonday = 34857,     ///< heading of a column of days, short form
  CalendarTuesday = 34858,    ///< heading of a column of days, short form
  CalendarWednesday = 34859,  ///< heading of a column of days, short form
  CalendarThursday = 34860,   ///< heading of a column of days, short form
  CalendarFriday = 34861,     ///< heading of a column of days, short form
  CalendarSaturday = 34862,   ///< heading of a column of days, short form
  CalendarSunday = 34863,     ///< heading of a column of days, short form
  NoDayTypesYet = 60050,      ///< in the list without day types: where they are made, button %s

  // Calendar: what people hear of it, its tooltips, legend and menu
  YearName = 60060,         ///< name of the year, for people who can't see it
  YearDate = 60061,         ///< a date: weekday %s, day %d, month %s, year %d
  YearDateTyped = 60062,    ///< a date in these words %s that has a day type: its name %s
  YearDateUntyped = 60063,  ///< a date in these words %s that has none
  YearWeek = 60064,         ///< name of a row of dates: the number %d of its week
  YearBefore = 60065,       ///< button to the year before
  YearAfter = 60066,        ///< button to the year after
  MarksBefore = 60067,      ///< tooltip of that button when earlier years have dates with a type
  MarksAfter = 60068,       ///< likewise for later years
  LegendName = 60069,       ///< name of the legend, for people who can't see it
  WithoutDayType = 60070,   ///< legend: the dates that have no day type
  LegendDays = 60071,       ///< legend: day type %s and how many days it has, %d
  YearUndo = 60072,         ///< menu
  YearRedo = 60073,         ///< menu
  CopyWeek = 60074,         ///< menu
  PasteWeek = 60075,        ///< menu
  CopyMonth = 60076,        ///< menu
  PasteMonth = 60077,       ///< menu
  RepeatByWeekday = 60078,  ///< menu: marks of the year on show for the next one
  RepeatByDate = 60079,     ///< menu: likewise

  // Fast selection
  FastSelectionTitle = 456,  ///< title
  Year = 432,                ///< label; a colon and the year are appended
  Weekdays = 434,            ///< box of the weekdays
  Months = 435,              ///< box of the months
  DayType = 455,             ///< label of the choice of day type
  Monday = 449,              ///< check box
  Tuesday = 450,             ///< check box
  Wednesday = 451,           ///< check box
  Thursday = 452,            ///< check box
  Friday = 453,              ///< check box
  Saturday = 454,            ///< check box
  Sunday = 448,              ///< check box; the numbers count the week from Sunday
  January = 436,             ///< check box; name of the month in the calendar
  February = 437,            ///< check box; name of the month in the calendar
  March = 438,               ///< check box; name of the month in the calendar
  April = 439,               ///< check box; name of the month in the calendar
  May = 440,                 ///< check box; name of the month in the calendar
  June = 441,                ///< check box; name of the month in the calendar
  July = 442,                ///< check box; name of the month in the calendar
  August = 443,              ///< check box; name of the month in the calendar
  September = 444,           ///< check box; name of the month in the calendar
  October = 445,             ///< check box; name of the month in the calendar
  November = 446,            ///< check box; name of the month in the calendar
  December = 447,            ///< check box; name of the month in the calendar

  // Condition list and condition editor
  ConditionListTitle = 36422,        ///< list: title
  ConditionBox = 32478,              ///< list: box around the list
  RemoveConditionsQuestion = 36423,  ///< list: question before the selected rows are removed
  AddConditionTitle = 32018,         ///< editor: title, while the condition has no name
  ModifyConditionTitle = 32010,      ///< editor: title, when the condition has a name
  Condition = 32008,                 ///< list: column; editor: label, a status may be appended
  ExpressionMissing = 32449,         ///< editor, status: the expression is empty
  ExpressionInvalid = 32446,         ///< editor, status and message: it can't be a condition
  ResultNotLogical = 32485,          ///< editor, status: it gives neither true nor false
  ExpressionUsesModule = 37540,      ///< editor, status: a module can't be evaluated here
  ConditionNameMissing = 37014,      ///< editor, message: the name is empty
  ConditionNameTaken = 37013,        ///< editor, message: another condition has this name
  ConditionUp = 60080,               ///< list, menu: what the button Up does
  ConditionDown = 60081,             ///< list, menu: likewise of Down
  AltUpKey = 60082,                  ///< list: name and tooltip of the button Up, with its keys
  AltDownKey = 60083,                ///< list: likewise of Down
  ComposeExpression = 60084,         ///< editor: name and tooltip of the button of the wizard
  ResultTrue = 60085,                ///< a present result
  ResultFalse = 60086,               ///< likewise
  ResultNoValue = 60087,             ///< why there is no present result: a value is missing
  PresentResult = 60088,             ///< a present result in these words %s, or why there is none
  ExpressionFaultTold = 60089,       ///< more of a message: what is wrong with the expression, %s
  ResultNotLogicalTold = 60090,      ///< likewise: it gives neither true nor false
  ExpressionKept = 60091,            ///< likewise: of %d characters, all that is kept of it: %s
  ExpressionNotKept = 60092,         ///< tooltip of a long expression: how many are kept, %d
  TryConditions = 60093,             ///< list, menu: opens the report of present results
  TrialTitle = 60094,                ///< report: title
  TrialResult = 60095,               ///< report: column of the results
  FirstTrueCondition = 60096,        ///< report: the name %s of the first that is true
  NoTrueCondition = 60097,           ///< report: none is true
  CloseReport = 60098,               ///< report: button
  ExpressionProposals = 60099,       ///< editor: name of the list of what may be written

  // Expressions over devices' variables
  NothingBehind = 60120,          ///< fault: behind this piece %s
  NothingBefore = 60121,          ///< fault: before this operator %s
  OperatorExpected = 60122,       ///< fault: two values side by side
  ClosingBracketMissing = 60123,  ///< fault
  OpeningBracketMissing = 60124,  ///< fault
  CommaOutsideFunction = 60125,   ///< fault
  WriteInstead = 60126,           ///< fault: how it has to be written, %s
  NotANumber = 60127,             ///< fault: a piece %s that begins like one
  WordUnknown = 60128,            ///< fault: a word %s
  CharacterUnexpected = 60129,    ///< fault: a character %s
  FaultOf = 60130,                ///< fault: a code's words %s and the name that it is about, %s
  VariableUnreadable = 60131,     ///< code: a variable belongs to a module
  VariableWithoutValue = 60132,   ///< code
  DeviceUnknown = 60133,          ///< code
  VariableUnknown = 60134,        ///< code
  VariableOfOtherClass = 60135,   ///< code
  DiscriminatorsOff = 60136,      ///< code
  TypesMixed = 60137,             ///< code
  ResultNotFinite = 60138,        ///< code
  ExpressionTooLarge = 60139,     ///< code
  NumbersNeeded = 60140,          ///< fault: what takes no truth values, %s
  TruthValuesNeeded = 60141,      ///< fault: what takes no numbers, %s
  HelpPlus = 60142,               ///< help
  HelpMinus = 60143,              ///< help
  HelpTimes = 60144,              ///< help
  HelpDivided = 60145,            ///< help
  HelpPower = 60146,              ///< help
  HelpComparison = 60147,         ///< help
  HelpAnd = 60148,                ///< help
  HelpOr = 60149,                 ///< help
  HelpNot = 60150,                ///< help
  HelpTruthValue = 60151,         ///< help
  HelpMin = 60152,                ///< help
  HelpMax = 60153,                ///< help
  HelpAbs = 60154,                ///< help
  HelpRound = 60155,              ///< help
  HelpFloor = 60156,              ///< help
  HelpCeil = 60157,               ///< help
  HelpSqrt = 60158,               ///< help
  HelpIf = 60159,                 ///< help

  // Wizard of expressions
  WizardTitle = 60160,           ///< title
  WizardConditionTitle = 60161,  ///< title, for a condition
  WizardFind = 60162,            ///< label of the search field
  WizardFindHint = 60163,        ///< in the empty search field
  WizardVariables = 60164,       ///< label of the tree
  WizardUnit = 60165,            ///< heading in the tree
  WizardValue = 60166,           ///< heading in the tree
  WizardNothingToShow = 60167,   ///< in the empty tree
  WizardNothingFound = 60168,    ///< in the tree that a search emptied
  WizardVocabulary = 60169,      ///< label of the second list
  WizardForm = 60170,            ///< heading of the second list: how a word is used
  WizardMeaning = 60171,         ///< heading of the second list: what it does
  WizardExpression = 60172,      ///< label of the edit
  WizardLength = 60173,          ///< beside it: characters in use %d, most that are kept %d
  WizardEmpty = 60174,           ///< in place of the result: nothing is written
  WizardNotCondition = 60177,    ///< result %s that is a number

  // Variable selection
  VariableSelection = 196,    ///< first part of the title
  Discriminator = 32355,      ///< second part of the title; the device's name may follow
  OneVariableAtMost = 32336,  ///< message: more than the one variable allowed
  VariablesAtMost = 197,      ///< message: more than the %d variables allowed

  // Lists
  InsertKey = 60040,  ///< tooltip of Add: the key that does the same
  DeleteKey = 60041,  ///< tooltip of Remove: the key that does the same
  EmptyList = 60042,  ///< in a list without rows: begin with the button %s

  // What messages and questions say more, below their texts
  ItemToRemove = 60030,   ///< one of those that the question is about: its name %s
  AndMore = 60031,        ///< after a list that was cut: how many more there are, %d
  FailedFile = 60032,     ///< the file that could not be had: its path %s
  FailureReason = 60033,  ///< why not, in the words of the system: %s
  SlotTold = 60037,       ///< a slot that is at fault: %s from %s to %s
  GapTold = 60038,        ///< minutes that no slot covers: from %s to %s

  // Message boxes
  MessageYes = 60001,  ///< button Yes of a question
  MessageNo = 60002,   ///< button No of a question
  MessageOk = 60003,   ///< button OK of a message
};

/// The number under which a language file holds the text.
constexpr unsigned Number(Text text) { return static_cast<unsigned>(text); }
