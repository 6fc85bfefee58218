NSLocalizedString(@"Pick \"now\"", @"Button");
NSLocalizedString(@"Pears/plums", @"");
NSLocalizedString(@"Ladder", @"Tool");
