NSLocalizedString(@"Part one " @"part two",
   @"c")
