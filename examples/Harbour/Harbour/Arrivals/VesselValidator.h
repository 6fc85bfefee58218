#import <Foundation/Foundation.h>

@interface VesselValidator : NSObject

- (NSString *)problemWithForm:(id)form;

@end
