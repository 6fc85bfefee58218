#import <Foundation/Foundation.h>

@interface Receipt : NSObject

- (NSString *)textForBoat:(NSString *)boat total:(double)total;

@end
