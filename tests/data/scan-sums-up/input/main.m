NSLocalizedString(@"Ebb", @"the tide");
NSLocalizedString(one, @"");
NSLocalizedString(two,
                  @"");
NSLocalizedString(three, @"");
NSLocalizedString(four, @"");
